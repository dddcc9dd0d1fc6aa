#include "Tests/Host/CloseModels.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

#include "Fc/Reflection/LocalValue.h"
#include "Fc/Resource/Measure/FcMeasureWithUnit.h"
#include "Fc/Resource/Measure/FcSIUnit.h"
#include "Fc/Resource/Measure/FcUnitAssignment.h"

namespace qor::test {

using fc::LocalValue;
using fc::resource::measure::FcMeasureWithUnit;
using fc::resource::measure::FcSIUnit;
using fc::resource::measure::FcUnitAssignment;

namespace {

bool close(double a, double b) {
  return std::abs(a - b) <= 1e-12 * std::max(std::abs(a), std::abs(b));
}

template <class List>
bool closeLists(const List& a, const List& b);

bool close(const LocalValue& a, const LocalValue& b) {
  if (a.index() != b.index() || a.typeName != b.typeName) return false;
  if (const auto* number = std::get_if<double>(&a.value))
    return close(*number, std::get<double>(b.value));
  if (const auto* list = std::get_if<LocalValue::List>(&a.value))
    return closeLists(*list, std::get<LocalValue::List>(b.value));
  if (const auto* pair = std::get_if<std::array<double, 2>>(&a.value))
    return closeLists(*pair, std::get<std::array<double, 2>>(b.value));
  if (const auto* triple = std::get_if<std::array<double, 3>>(&a.value))
    return closeLists(*triple, std::get<std::array<double, 3>>(b.value));
  return std::holds_alternative<std::shared_ptr<fc::FcBase>>(a.value) || a.value == b.value;
}

template <class List>
bool closeLists(const List& a, const List& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const auto& x, const auto& y) { return close(x, y); });
}

bool isLength(const std::string& type) {
  return type == "IfcLengthMeasure" || type == "IfcPositiveLengthMeasure" ||
         type == "IfcNonNegativeLengthMeasure";
}

/// How many numbers of the value were lengths.
std::size_t scale(LocalValue& value, bool isLengthType, double factor) {
  if (value.typeName) isLengthType = isLength(*value.typeName);
  std::size_t count = 0;
  if (auto* list = std::get_if<LocalValue::List>(&value.value))
    for (LocalValue& element : *list) count += scale(element, isLengthType, factor);
  if (!isLengthType) return count;
  const auto scaleOne = [&](double& number) {
    number *= factor;
    ++count;
  };
  if (auto* number = std::get_if<double>(&value.value)) scaleOne(*number);
  if (auto* pair = std::get_if<std::array<double, 2>>(&value.value))
    std::for_each(pair->begin(), pair->end(), scaleOne);
  if (auto* triple = std::get_if<std::array<double, 3>>(&value.value))
    std::for_each(triple->begin(), triple->end(), scaleOne);
  return count;
}

}  // namespace

std::vector<std::string> differences(const host::step::ReadResult& a,
                                     const host::step::ReadResult& b) {
  std::vector<std::string> lines;
  std::map<std::uint64_t, std::shared_ptr<fc::FcBase>> others;
  for (const auto& instance : b.instances) others.emplace(instance.number, instance.entity);
  for (const auto& instance : a.instances) {
    if (!instance.entity) continue;
    const fc::FcBase& x = *instance.entity;
    if (fc::fcCast<FcUnitAssignment>(&x) || fc::fcCast<FcSIUnit>(&x)) continue;
    const std::shared_ptr<fc::FcBase> other = others[instance.number];
    if (!other || other->classId() != x.classId()) {
      lines.push_back('#' + std::to_string(instance.number) + " isn't there");
      continue;
    }
    const fc::FcBase& y = *other;
    x.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
      if (close(x.getLocalValue(attribute.id()), y.getLocalValue(attribute.id()))) return;
      std::ostringstream line;
      line.precision(17);
      line << '#' << instance.number << ' ' << x.ifcName() << '.' << attribute.name;
      if (const auto text = x.getAttributeAsString(std::string(attribute.name)))
        line << ' ' << *text;
      lines.push_back(line.str());
    });
  }
  return lines;
}

std::size_t scaleLengths(const host::step::ReadResult& model, double factor) {
  std::size_t count = 0;
  for (const auto& instance : model.instances) {
    if (!instance.entity || fc::fcCast<FcMeasureWithUnit>(instance.entity.get())) continue;
    fc::FcBase& entity = *instance.entity;
    entity.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
      if (attribute.type->entitiesOnly) return;
      LocalValue value = entity.getLocalValue(attribute.id());
      const bool isPrecision = attribute.name == "Precision";
      const std::size_t found =
          scale(value, isPrecision || isLength(std::string(attribute.typeName)), factor);
      if (found > 0 && entity.setLocalValue(value, attribute.id())) count += found;
    });
  }
  return count;
}

}  // namespace qor::test
