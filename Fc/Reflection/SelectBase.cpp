#include "Fc/Reflection/SelectBase.h"

#include <memory>

#include "Fc/BaseType.h"
#include "Fc/FcBase.h"
#include "Fc/Reflection/ClassInfo.h"
#include "Fc/Reflection/EntityComparison.h"
#include "Fc/Reflection/NumberOf.h"
#include "Fc/Reflection/Traits/ReferenceTraits.h"
#include "Fc/Reflection/Traits/SelectTraits.h"
#include "Fc/Reflection/ValueSink.h"
#include "Fc/Reflection/ValueSource.h"

namespace qor::fc {

namespace {

// Whether a value with this type name belongs to an alternative at any depth.
bool holdsTyped(const SelectInfo& info, std::string_view upperName) {
  for (const AlternativeInfo& alternative : info.alternatives) {
    if (alternative.nested ? holdsTyped(*alternative.nested, upperName)
                           : !alternative.isEntity() && alternative.upperName == upperName)
      return true;
  }
  return false;
}

bool holdsClass(const SelectInfo& info, std::uint32_t classId) {
  for (const AlternativeInfo& alternative : info.alternatives) {
    if (alternative.nested ? holdsClass(*alternative.nested, classId) : alternative.holds(classId))
      return true;
  }
  return false;
}

const ReferenceOperations& referenceOf(const AlternativeInfo& alternative) {
  return static_cast<const ReferenceOperations&>(*alternative.operations->type);
}

}  // namespace

/// A select that isn't the result yet: its value goes with it unless it is moved out.
class SelectBase::Candidate : public SelectBase {
 public:
  Candidate(const SelectInfo& info, std::uint32_t position) : m_info(info) { make(info, position); }
  ~Candidate() { reset(m_info); }

 private:
  const SelectInfo& m_info;
};

FcBase* SelectBase::getEntity(const SelectInfo& info) const {
  if (m_position == npos) return nullptr;
  const AlternativeInfo& alternative = info.alternatives[m_position];
  if (alternative.nested) return nestedAt(value(info)).getEntity(*alternative.nested);
  return alternative.isEntity() ? referenceOf(alternative).entity(value(info)) : nullptr;
}

std::optional<double> SelectBase::number(const SelectInfo& info) const {
  if (m_position == npos) return std::nullopt;
  const AlternativeInfo& alternative = info.alternatives[m_position];
  if (alternative.nested) return nestedAt(value(info)).number(*alternative.nested);
  if (alternative.isEntity()) return std::nullopt;
  return numberOf(at(info).type->getLocalValue(value(info)));
}

bool SelectBase::setNumber(const SelectInfo& info, double number) {
  if (m_position == npos) return false;
  const AlternativeInfo& alternative = info.alternatives[m_position];
  if (alternative.nested) return nestedAt(value(info)).setNumber(*alternative.nested, number);
  if (alternative.isEntity()) return false;
  if (at(info).type->setLocalValue(value(info), LocalValue(number))) return true;
  constexpr double limit = 9223372036854775808.0;  // 2^63, the first that doesn't fit
  return number >= -limit && number < limit &&
         at(info).type->setLocalValue(value(info), LocalValue(static_cast<std::int64_t>(number)));
}

LocalValue SelectBase::getLocalValue(const SelectInfo& info) const {
  if (m_position == npos) return LocalValue(details::EmptyValue());
  const AlternativeInfo& alternative = info.alternatives[m_position];
  if (alternative.nested) return nestedAt(value(info)).getLocalValue(*alternative.nested);
  LocalValue result = at(info).type->getLocalValue(value(info));
  if (!alternative.isEntity()) result.typeName = std::string(alternative.ifcName);
  return result;
}

bool SelectBase::setLocalValue(const SelectInfo& info, const LocalValue& value) {
  if (const auto* entity = std::get_if<std::shared_ptr<FcBase>>(&value.value))
    return *entity && setEntity(info, *entity);
  if (value.isEmpty() || value.index() == 0) return false;
  if (value.typeName) return setNamed(info, value);
  if (info.valueCount != 1) return false;
  for (std::uint32_t i = 0; i < info.alternatives.size(); ++i) {
    const AlternativeInfo& alternative = info.alternatives[i];
    if (alternative.isEntity() || alternative.nested) continue;
    LocalValue named = value;
    named.typeName = std::string(alternative.ifcName);
    return setNamed(info, named);
  }
  return false;
}

bool SelectBase::setNamed(const SelectInfo& info, const LocalValue& value) {
  for (std::uint32_t i = 0; i < info.alternatives.size(); ++i) {
    const AlternativeInfo& alternative = info.alternatives[i];
    const AlternativeOperations& operations = *alternative.operations;
    if (alternative.isEntity() || (!alternative.nested && alternative.ifcName != *value.typeName))
      continue;
    Candidate candidate(info, i);
    void* place = candidate.value(info);
    const bool stored = alternative.nested ? nestedAt(place).setNamed(*alternative.nested, value)
                                           : operations.type->setLocalValue(place, value);
    if (!stored) continue;
    moveFrom(info, candidate);
    return true;
  }
  return false;
}

bool SelectBase::setEntity(const SelectInfo& info, const std::shared_ptr<FcBase>& entity) {
  const std::uint32_t classId = entity->classId();
  for (std::uint32_t i = 0; i < info.alternatives.size(); ++i) {
    const AlternativeInfo& alternative = info.alternatives[i];
    if (alternative.nested ? !holdsClass(*alternative.nested, classId)
                           : !alternative.holds(classId))
      continue;
    void* place = make(info, i);
    if (alternative.nested) return nestedAt(place).setEntity(*alternative.nested, entity);
    std::shared_ptr<FcBase> value = entity;
    referenceOf(alternative).exchange(place, value);
    return true;
  }
  return false;
}

std::optional<std::string> SelectBase::getAsString(const SelectInfo& info, bool withType) const {
  if (m_position == npos) return std::nullopt;
  const AlternativeInfo& alternative = info.alternatives[m_position];
  if (alternative.nested) return nestedAt(value(info)).getAsString(*alternative.nested, withType);
  if (at(info).spelling) {
    reportNoTextForm(at(info).spelling(), "getAsString");
    return std::nullopt;
  }
  std::optional<std::string> text = at(info).type->getAsString(value(info));
  if (text && withType) text = std::string(alternative.name) + "(" + *text + ")";
  return text;
}

bool SelectBase::setFromString(const SelectInfo& info, const std::string& text) {
  const std::size_t open = text.find('(');
  if (open == std::string::npos || text.back() != ')') return false;
  // Both parts are copied first: the text may be the select's own value.
  const std::string name = text.substr(0, open);
  const std::string value = text.substr(open + 1, text.size() - open - 2);
  return setTypeFromString(info, name) && setValueOnTypeFromString(info, value);
}

bool SelectBase::setTypeFromString(const SelectInfo& info, const std::string& name) {
  for (std::uint32_t i = 0; i < info.alternatives.size(); ++i) {
    const AlternativeInfo& alternative = info.alternatives[i];
    if (info.nestedOnly) {
      Candidate candidate(info, i);
      void* place = candidate.value(info);
      if (!nestedAt(place).setTypeFromString(*alternative.nested, name)) continue;
      moveFrom(info, candidate);
      return true;
    } else if (alternative.name == name) {
      make(info, i);
      return true;
    }
  }
  return false;
}

bool SelectBase::setValueOnTypeFromString(const SelectInfo& info, const std::string& text) {
  if (m_position == npos) return false;
  const AlternativeInfo& alternative = info.alternatives[m_position];
  if (alternative.nested) {
    SelectBase& nested = nestedAt(value(info));
    return info.nestedOnly ? nested.setValueOnTypeFromString(*alternative.nested, text)
                           : nested.setFromString(*alternative.nested, text);
  }
  if (info.entitiesOnly) return false;
  if (at(info).spelling) {
    reportNoTextForm(at(info).spelling(), "setFromString");
    return false;
  }
  return at(info).type->setFromString(value(info), text);
}

void SelectBase::forEachEntity(const SelectInfo& info,
                               TypeOperations::EntityCallback callback) const {
  if (m_position == npos) return;
  const AlternativeInfo& alternative = info.alternatives[m_position];
  if (alternative.nested)
    nestedAt(value(info)).forEachEntity(*alternative.nested, callback);
  else
    at(info).type->forEachEntity(value(info), callback);
}

bool SelectBase::read(const SelectInfo& info, ValueSource& source, const TypeOperations& expected) {
  reset(info);
  switch (source.next()) {
    case ValueSource::Kind::null:
    case ValueSource::Kind::derived:
      source.skip();
      return true;
    case ValueSource::Kind::entity:
      return readEntity(info, source, expected);
    case ValueSource::Kind::typed: {
      const std::string_view upperName = source.openTyped();
      const bool known = holdsTyped(info, upperName);
      const bool stored = known && readTyped(info, upperName, source);
      if (!stored) reset(info);
      if (!known) {
        source.rejected(Rejection::unknownType, upperName, expected);
        source.skip();
      }
      source.closeTyped();
      return stored;
    }
    default:
      source.rejected(Rejection::wrongKind, {}, expected);
      source.skip();
      return false;
  }
}

bool SelectBase::readTyped(const SelectInfo& info, std::string_view upperName,
                           ValueSource& source) {
  for (std::uint32_t i = 0; i < info.alternatives.size(); ++i) {
    const AlternativeInfo& alternative = info.alternatives[i];
    if (alternative.nested) {
      if (!holdsTyped(*alternative.nested, upperName)) continue;
      return nestedAt(make(info, i)).readTyped(*alternative.nested, upperName, source);
    }
    if (alternative.isEntity() || alternative.upperName != upperName) continue;
    return alternative.operations->type->read(make(info, i), source);
  }
  return false;
}

bool SelectBase::readEntity(const SelectInfo& info, ValueSource& source,
                            const TypeOperations& expected) {
  const std::shared_ptr<FcBase>* entity = source.takeEntity();
  if (!entity) return false;
  if (setEntity(info, *entity)) return true;
  source.rejected(Rejection::wrongClass, (*entity)->ifcNameUpper(), expected);
  return false;
}

void SelectBase::write(const SelectInfo& info, ValueSink& sink) const {
  if (m_position == npos) {
    sink.null();
    return;
  }
  const AlternativeInfo& alternative = info.alternatives[m_position];
  if (alternative.nested) {
    nestedAt(value(info)).write(*alternative.nested, sink);
  } else if (alternative.isEntity()) {
    at(info).type->write(value(info), sink);
  } else {
    sink.openTyped(alternative.upperName);
    at(info).type->write(value(info), sink);
    sink.closeTyped();
  }
}

void SelectBase::assign(const SelectInfo& info, const SelectBase& source,
                        FcCopySettings& settings) {
  if (this == &source) return;
  void* place = make(info, source.m_position);
  if (place) at(info).type->assign(place, source.value(info), settings);
}

std::weak_ordering SelectBase::compare(const SelectInfo& info, const SelectBase& other,
                                       TypeOperations::PairCallback defer) const {
  if (m_position != other.m_position || m_position == npos) return m_position <=> other.m_position;
  return at(info).type->compare(value(info), other.value(info), defer);
}

bool SelectBase::isLessThan(const SelectInfo& info, const SelectBase& other) const {
  EntityComparison comparison;
  return comparison.order(
             [&](TypeOperations::PairCallback defer) { return compare(info, other, defer); }) < 0;
}

}  // namespace qor::fc
