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

bool areUnits(const fc::FcBase& a, const fc::FcBase& b) {
  return fc::fcCast<FcSIUnit>(&a) && fc::fcCast<FcSIUnit>(&b);
}

/// Compares values, and references by the numbers of what they refer to.
class Comparison {
 public:
  Comparison(const host::step::ReadResult& a, const host::step::ReadResult& b, Compared compared)
      : m_allButUnits(compared == Compared::allButUnits) {
    for (const auto& instance : a.instances) m_numbers[instance.entity.get()] = instance.number;
    for (const auto& instance : b.instances) m_numbers[instance.entity.get()] = instance.number;
  }

  bool same(const LocalValue& a, const LocalValue& b) const {
    if (a.index() != b.index() || a.typeName != b.typeName) return false;
    return std::visit(
        [&](const auto& value) {
          return same(value, std::get<std::decay_t<decltype(value)>>(b.value));
        },
        a.value);
  }

 private:
  template <class Value>
  bool same(const Value& a, const Value& b) const {
    return a == b;
  }
  bool same(double a, double b) const {
    const double tolerance = m_allButUnits ? 1e-12 * std::max(std::abs(a), std::abs(b)) : 0;
    return std::abs(a - b) <= tolerance;
  }
  bool same(const std::shared_ptr<fc::FcBase>& a, const std::shared_ptr<fc::FcBase>& b) const {
    if (!a || !b) return !a && !b;
    return m_numbers.at(a.get()) == m_numbers.at(b.get()) || (m_allButUnits && areUnits(*a, *b));
  }
  bool same(const LocalValue::List& a, const LocalValue::List& b) const {
    return sameElements(a, b);
  }
  template <std::size_t n>
  bool same(const std::array<double, n>& a, const std::array<double, n>& b) const {
    return sameElements(a, b);
  }
  template <class List>
  bool sameElements(const List& a, const List& b) const {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [this](const auto& x, const auto& y) { return this->same(x, y); });
  }

  bool m_allButUnits;
  std::map<const fc::FcBase*, std::uint64_t> m_numbers;
};

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
                                     const host::step::ReadResult& b, Compared compared) {
  const Comparison comparison(a, b, compared);
  std::vector<std::string> lines;
  std::map<std::uint64_t, std::shared_ptr<fc::FcBase>> others;
  for (const auto& instance : b.instances) others.emplace(instance.number, instance.entity);
  for (const auto& instance : a.instances) {
    if (!instance.entity) continue;
    const fc::FcBase& x = *instance.entity;
    if (compared == Compared::allButUnits &&
        (fc::fcCast<FcUnitAssignment>(&x) || fc::fcCast<FcSIUnit>(&x)))
      continue;
    const std::shared_ptr<fc::FcBase> other = others[instance.number];
    if (!other || other->classId() != x.classId()) {
      lines.push_back('#' + std::to_string(instance.number) + " isn't there");
      continue;
    }
    const fc::FcBase& y = *other;
    x.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
      if (comparison.same(x.getLocalValue(attribute.id()), y.getLocalValue(attribute.id()))) return;
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
