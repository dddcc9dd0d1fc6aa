#include "Host/StepFile/ParameterSource.h"

#include <fmt/core.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "Fc/FcBase.h"
#include "Fc/Reflection/EnumInfo.h"
#include "Fc/Reflection/SelectInfo.h"
#include "Host/StepFile/Numbers.h"
#include "Host/StepFile/TextCodec.h"
#include "Qor/DateTime/DateTimeFormat.h"

namespace qor::host::step {

using fc::Rejection;

namespace {

// What is read once nothing of a statement can be understood any more.
constexpr char endOfStatement[] = ";";

const FileAttribute noAttribute;

bool isHexDigit(char c) { return isDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f'); }

std::uint8_t valueOfDigit(char c) {
  return static_cast<std::uint8_t>(c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10);
}

/// The defined types that stand on other ones. Each has a length of its own among the types that
/// selects hold as a rule, so that most names are told apart by that alone.
constexpr std::pair<std::string_view, std::string_view> underlyingTypes[] = {
    {"IFCNONNEGATIVELENGTHMEASURE", "IFCLENGTHMEASURE"},
    {"IFCPOSITIVELENGTHMEASURE", "IFCLENGTHMEASURE"},
    {"IFCPOSITIVEPLANEANGLEMEASURE", "IFCPLANEANGLEMEASURE"},
    {"IFCNORMALISEDRATIOMEASURE", "IFCRATIOMEASURE"},
    {"IFCPOSITIVERATIOMEASURE", "IFCRATIOMEASURE"},
    {"IFCPOSITIVEINTEGER", "IFCINTEGER"},
    {"IFCBOXALIGNMENT", "IFCLABEL"},
    {"IFCLANGUAGEID", "IFCIDENTIFIER"},
};

std::string_view underlyingType(std::string_view upperName) {
  for (const auto& [type, underlying] : underlyingTypes)
    if (type == upperName) return underlying;
  return {};
}

/// A select takes values of that type, itself or by a select in it.
bool holds(const fc::SelectInfo& select, std::string_view upperName) {
  return std::ranges::any_of(select.alternatives, [&](const fc::AlternativeInfo& alternative) {
    return alternative.nested ? holds(*alternative.nested, upperName)
                              : !alternative.isEntity() && alternative.upperName == upperName;
  });
}

bool isDelimiter(char c) {
  return static_cast<unsigned char>(c) <= ' ' || c == ',' || c == ')' || c == ';' || c == '/';
}

}  // namespace

void ParameterSource::start(std::string_view text, const Place& place, bool damaged) {
  m_scanner = Scanner(text);
  m_at = text.data();
  m_first = false;
  m_depth = 0;
  m_stringOpen = nullptr;
  m_resumeAt = nullptr;
  m_place = place;
  setAttribute(noAttribute, 0);
  m_damaged = damaged;
}

bool ParameterSource::finish() {
  setAttribute(noAttribute, 0);
  m_at = m_scanner.skipSpace(m_at);
  if (*m_at != ';' && !m_damaged) {
    report(ProblemKind::syntax, [this] {
      return fmt::format("\"{}\" stands behind the attributes; passed over.", quote(m_at));
    });
    m_damaged = true;
  }
  return !m_damaged;
}

ParameterSource::Kind ParameterSource::next() {
  const Kind kind = plainKind();
  return m_conversion == Conversion::none ? kind : convertedKind(kind);
}

ParameterSource::Kind ParameterSource::convertedKind(Kind kind) {
  const bool isPlainValue = kind >= Kind::integer && kind <= Kind::binary;
  if (!isPlainValue) return kind == Kind::list && holdsLists() ? Kind::derived : kind;
  if (m_conversion == Conversion::mendText && kind != Kind::binary) return Kind::text;
  if (m_conversion == Conversion::toText && kind == Kind::enumerator) return Kind::text;
  m_addsType = m_conversion == Conversion::toType;
  return m_addsType ? Kind::typed : kind;
}

ParameterSource::Kind ParameterSource::plainKind() {
  m_at = m_scanner.skipSpace(m_at);
  m_value = m_at;
  switch (*m_at) {
    case '$':
      return Kind::null;
    case '*':
      return Kind::derived;
    case '#':
      return isDigit(m_at[1]) ? Kind::entity : Kind::bad;
    case '(':
      return Kind::list;
    case '\'':
      return textKind();
    case '.':
      return isDigit(m_at[1]) ? Kind::real : enumeratorKind();
    case '"':
      return binaryKind();
    case '+':
    case '-':
      return numberKind();
    default:
      if (isDigit(*m_at)) return numberKind();
      return isNameChar(*m_at) ? typedKind() : Kind::bad;
  }
}

ParameterSource::Kind ParameterSource::numberKind() const {
  const char* at = m_at;
  if (*at == '-' || *at == '+') ++at;
  if (!isDigit(*at) && !(*at == '.' && isDigit(at[1]))) return Kind::bad;
  while (isDigit(*at)) ++at;
  if (*at != '.' && *at != 'E' && *at != 'e') return Kind::integer;
  if (m_conversion != Conversion::toInteger || *at != '.') return Kind::real;
  do ++at;
  while (*at == '0');
  return isDelimiter(*at) ? Kind::integer : Kind::real;
}

ParameterSource::Kind ParameterSource::textKind() {
  if (m_stringOpen != m_at) {
    m_stringOpen = m_at;
    m_string = m_scanner.string(m_at);
  }
  return m_string.close ? Kind::text : Kind::bad;
}

ParameterSource::Kind ParameterSource::enumeratorKind() const {
  const char* at = m_at + 1;
  while (isNameChar(*at)) ++at;
  return *at == '.' ? Kind::enumerator : Kind::bad;
}

ParameterSource::Kind ParameterSource::binaryKind() const {
  const char* at = m_at + 1;
  while (isHexDigit(*at)) ++at;
  return *at == '"' ? Kind::binary : Kind::bad;
}

ParameterSource::Kind ParameterSource::typedKind() {
  const char* at = m_at;
  while (isNameChar(*at)) ++at;
  at = m_scanner.skipSpace(at);
  if (*at != '(') return Kind::bad;
  // An enumerator with the name of its type, as in a select.
  const bool isEnumerator = m_attribute->attribute && m_attribute->attribute->type->enumeration &&
                            *m_scanner.skipSpace(at + 1) == '.';
  return isEnumerator ? Kind::enumerator : Kind::typed;
}

// Says so of a list of lists, where that has no place.
bool ParameterSource::holdsLists() {
  if (m_conversion != Conversion::flatList || *m_scanner.skipSpace(m_at + 1) != '(') return false;
  report(ProblemKind::noPlace, [this] {
    return fmt::format("is {}; the model has no place for it: left out.", quote(m_at));
  });
  return true;
}

void ParameterSource::skip() {
  std::size_t depth = 0;
  while (true) {
    m_at = m_scanner.skipSpace(m_at);
    switch (*m_at) {
      case ';':
        return;
      case ',':
        if (depth == 0) return;
        ++m_at;
        break;
      case '(':
        ++depth;
        ++m_at;
        break;
      case ')':
        if (depth == 0) return;
        --depth;
        ++m_at;
        break;
      case '\'':
        if (textKind() == Kind::bad) return giveUp();
        m_at = m_string.next;
        break;
      default:
        ++m_at;
    }
  }
}

// A string that isn't closed: where it was meant to end, nobody can know.
void ParameterSource::giveUp() {
  if (!m_damaged) {
    report(ProblemKind::openString, [this] {
      return fmt::format(
          "is a text without its closing apostrophe, {}; left out, with all that follows.",
          quote(m_at));
    });
  }
  m_damaged = true;
  m_at = endOfStatement;
}

// Whether the number that was read is all that stands there; passes over the rest.
bool ParameterSource::endsNumber() {
  if (isDelimiter(*m_at)) return true;
  skip();
  return false;
}

bool ParameterSource::takeReal(double& out) {
  double value = 0;
  const bool held = readReal(m_at, value) == NumberResult::ok;
  if (!endsNumber() || !held) return false;
  if (m_unit) value = (*m_unit)(value);
  if (!std::isfinite(value)) return false;
  out = value;
  return true;
}

bool ParameterSource::takeInteger(std::int64_t& out) {
  std::int64_t value = 0;
  const bool held = readInteger(m_at, value) == NumberResult::ok;
  // What `next()` called an integer though it has a point has zeros alone behind it.
  if (*m_at == '.') {
    do ++m_at;
    while (*m_at == '0');
  }
  if (!endsNumber() || !held) return false;
  out = value;
  return true;
}

void ParameterSource::takeText(std::string& out) {
  if (*m_at != '\'') {
    takeUnquoted(out);
    return;
  }
  const std::string_view content(m_at + 1, static_cast<std::size_t>(m_string.close - m_at - 1));
  m_at = m_string.next;
  if (m_string.plain) {
    out.assign(content);
    checkDate(out);
    return;
  }
  const TextDefects defects = decodeText(content, out);
  if (defects.notUtf8)
    reportText(ProblemKind::badText, "has bytes that are no UTF-8, {}; taken as Latin-1.");
  if (defects.badEscape)
    reportText(ProblemKind::badEscape,
               "has a backslash that begins no escape, {}; taken as it stands.");
  if (defects.noCharacter)
    reportText(ProblemKind::badEscape,
               "has an escape that means no character, {}; U+FFFD stands for it.");
  if (defects.hasNul)
    reportText(ProblemKind::badText, "has bytes that are zero, {}; taken as they stand.");
}

// It stays, so that nothing is lost. An empty text is how some files say that there is no date.
void ParameterSource::checkDate(const std::string& text) {
  if (m_dateForm == 0 || text.empty() || DateTimeFormat(m_dateForm).fromString(text)) return;
  report(ProblemKind::badDate, [this] {
    return fmt::format("is {}, which is no date{}; kept as it stands.", quote(m_value),
                       m_dateForm == DateTimeFormat::isoDateTime ? " with a time" : "");
  });
}

// A number or an enumerator where a text belongs.
void ParameterSource::takeUnquoted(std::string& out) {
  if (m_conversion == Conversion::mendText) {
    report(ProblemKind::wrongKind, [this] {
      return fmt::format("is {}, which is no {}; taken as a text.", quote(m_at), expectedType());
    });
  }
  if (*m_at == '.' && isNameChar(m_at[1]) && !isDigit(m_at[1])) {
    out.assign(takeEnumerator());
    return;
  }
  const char* value = m_at;
  while (!isDelimiter(*m_at)) ++m_at;
  out.assign(value, m_at);
}

// One line a file: who writes one text so writes them all so.
void ParameterSource::reportText(ProblemKind kind, const char* message) {
  m_log.addForFile(kind, m_place, [&] {
    return attributePrefix() + fmt::format(fmt::runtime(message), quote(m_value));
  });
}

std::string_view ParameterSource::takeEnumerator() {
  const std::string_view name = plainEnumerator();
  return m_conversion == Conversion::rename
             ? enumeratorInModel(m_version, m_attribute->attribute->typeName, name)
             : name;
}

std::string_view ParameterSource::plainEnumerator() {
  const bool isTyped = *m_at != '.';
  if (isTyped) {
    while (*m_at != '(') ++m_at;
    m_at = m_scanner.skipSpace(m_at + 1);
  }
  const char* name = ++m_at;
  while (isNameChar(*m_at)) ++m_at;
  const std::string_view result(name, static_cast<std::size_t>(m_at - name));
  if (*m_at == '.') ++m_at;
  if (isTyped) closeParenthesis();
  return result;
}

// The first digit tells how many bits in front were added to fill up the second one.
void ParameterSource::takeBinary(std::vector<std::uint8_t>& out) {
  const char* digit = ++m_at;
  while (*m_at != '"') ++m_at;
  const char* end = m_at++;
  out.clear();
  if (digit == end) return;
  const bool wholeBytes = *digit++ == '0' && (end - digit) % 2 == 0;
  if (!wholeBytes) {
    report(ProblemKind::badText, [this] {
      return fmt::format("is no whole number of bytes, {}; filled up in front with zeros.",
                         quote(m_value));
    });
  }
  out.reserve(static_cast<std::size_t>(end - digit + 1) / 2);
  if ((end - digit) % 2 != 0) out.push_back(valueOfDigit(*digit++));
  for (; digit != end; digit += 2)
    out.push_back(static_cast<std::uint8_t>(valueOfDigit(digit[0]) << 4 | valueOfDigit(digit[1])));
}

const std::shared_ptr<fc::FcBase>* ParameterSource::takeEntity() {
  ++m_at;
  m_reference = readInstanceNumber(m_at, m_scanner.end());
  const std::shared_ptr<fc::FcBase>* entity = m_instances.find(m_reference);
  if (entity && *entity) return entity;
  if (entity && isWithoutPlace(m_reference))
    report(ProblemKind::noPlace, [this] {
      return fmt::format("refers to #{}, which the model has no place for; left out.", m_reference);
    });
  else if (entity)
    report(ProblemKind::leftOutReference, [this] {
      return fmt::format("refers to {}, which was left out itself; left out.", quote(m_value));
    });
  else
    report(ProblemKind::danglingReference, [this] {
      return fmt::format("refers to {}, which the file doesn't have; left out.", quote(m_value));
    });
  return nullptr;
}

bool ParameterSource::isWithoutPlace(std::uint64_t number) const {
  const auto found = m_wrappers.find(number);
  return found != m_wrappers.end() && found->second.empty();
}

void ParameterSource::openList() {
  m_list = m_at++;
  m_first = true;
  ++m_depth;
}

bool ParameterSource::more() {
  while (true) {
    m_at = m_scanner.skipSpace(m_at);
    if (*m_at == ')' || *m_at == ';') {
      if (!endsWrapper()) return closeList();
      resume();
    } else if (!m_first && *m_at != ',') {
      passOver();
    } else {
      if (!m_first) ++m_at;
      m_first = false;
      const bool mayBeWrapper = m_conversion == Conversion::unwrap && !m_resumeAt;
      if (!mayBeWrapper || !unwrap()) return true;
    }
  }
}

// The list of a wrapper ends, and the one that it stands in goes on.
bool ParameterSource::endsWrapper() const { return m_resumeAt && m_depth == m_resumeDepth; }

// Always false: nothing more comes.
bool ParameterSource::closeList() {
  if (*m_at == ')')
    ++m_at;
  else if (!std::exchange(m_damaged, true))
    report(ProblemKind::syntax,
           [] { return "is a list without its closing parenthesis; read up to the semicolon."; });
  m_first = false;
  --m_depth;
  return false;
}

// What stands behind an element and is no comma.
void ParameterSource::passOver() {
  report(ProblemKind::syntax, [this] {
    return fmt::format(
        "is followed by \"{}\", where a comma or a closing parenthesis belongs; passed over.",
        quote(m_at));
  });
  skip();
}

bool ParameterSource::unwrap() {
  m_at = m_scanner.skipSpace(m_at);
  if (*m_at != '#') return false;
  const char* behind = m_at + 1;
  const std::uint64_t number = readInstanceNumber(behind, m_scanner.end());
  if (const auto* entity = m_instances.find(number); !entity || *entity) return false;
  const auto wrapper = m_wrappers.find(number);
  if (wrapper == m_wrappers.end() || wrapper->second.empty()) return false;
  m_resumeAt = behind;
  m_resumeScanner = m_scanner;
  m_resumeDepth = m_depth;
  m_scanner = Scanner(wrapper->second);
  m_at = wrapper->second.data();
  m_first = true;
  return true;
}

void ParameterSource::resume() {
  m_scanner = m_resumeScanner;
  m_at = std::exchange(m_resumeAt, nullptr);
  m_first = false;
}

std::string_view ParameterSource::openTyped() {
  m_conversion = Conversion::none;
  if (m_addsType) {
    useType(m_attribute->type);
    return m_attribute->type;
  }
  const char* name = m_at;
  while (isNameChar(*m_at)) ++m_at;
  const std::string_view upperName(name, static_cast<std::size_t>(m_at - name));
  m_at = m_scanner.skipSpace(m_at) + 1;
  useType(upperName);
  if (upperName == m_integralType) m_conversion = Conversion::toInteger;
  return typeInstead(upperName);
}

// A value of a type that the select lacks is one of the type on which that stands, if the select
// has it.
std::string_view ParameterSource::typeInstead(std::string_view upperName) {
  const std::string_view underlying = underlyingType(upperName);
  const fc::AttributeInfo* attribute = m_attribute->attribute;
  if (underlying.empty() || !attribute || !attribute->type->select ||
      holds(*attribute->type->select, upperName) || !holds(*attribute->type->select, underlying))
    return upperName;
  m_log.addForFile(ProblemKind::takenAs, m_place, [&] {
    return attributePrefix() + fmt::format("is of type {}, which {} doesn't take; taken as {}.",
                                           upperName, expectedType(), underlying);
  });
  return underlying;
}

// In a select each value tells its own type.
void ParameterSource::useType(std::string_view upperName) {
  m_dateForm = dateFormOfType(upperName);
  if (m_units && m_attribute->measure == measure::byType)
    m_unit = m_units->find(measureOfType(upperName));
}

void ParameterSource::closeTyped() {
  m_conversion = m_attribute->conversion;
  if (!std::exchange(m_addsType, false)) closeParenthesis();
}

void ParameterSource::closeParenthesis() {
  m_at = m_scanner.skipSpace(m_at);
  if (*m_at != ')') {
    report(ProblemKind::syntax, [this] {
      return fmt::format(
          "has \"{}\" behind the value of a type, where a closing parenthesis belongs; passed "
          "over.",
          quote(m_at));
    });
  }
  while (*m_at != ')' && *m_at != ';') {
    if (*m_at == ',') ++m_at;
    skip();
  }
  if (*m_at == ')') ++m_at;
}

void ParameterSource::rejected(Rejection reason, std::string_view found,
                               const fc::TypeOperations& expected) {
  // Nothing stands where a statement was cut off, and that has been reported.
  if (m_damaged && *m_at == ';') return;
  // An open string is reported when it is skipped.
  if (reason == Rejection::wrongKind && *m_at == '\'' && m_stringOpen == m_at && !m_string.close)
    return;
  // `AttributeReader` mends it and says so.
  if (m_attribute->isGuid) return;
  if (reason == Rejection::unknownEnumerator && found.empty() && m_conversion == Conversion::rename)
    return report(ProblemKind::noPlace, [this] {
      return fmt::format("is {}; the model has no place for it: left out.", quote(m_value));
    });
  constexpr ProblemKind kinds[] = {ProblemKind::wrongKind,         ProblemKind::wrongClass,
                                   ProblemKind::unknownEnumerator, ProblemKind::unknownType,
                                   ProblemKind::wrongCount,        ProblemKind::outOfRange};
  report(kinds[static_cast<std::size_t>(reason)],
         [&] { return describe(reason, found, expected) + "; left out."; });
}

std::string_view ParameterSource::lastValue() const {
  if (m_at == endOfStatement) return {};
  std::string_view value(m_value, static_cast<std::size_t>(m_at - m_value));
  if (value.starts_with('\'')) value.remove_prefix(1);
  if (value.ends_with('\'')) value.remove_suffix(1);
  return value;
}

std::string ParameterSource::describe(Rejection reason, std::string_view found,
                                      const fc::TypeOperations& expected) const {
  const char* verb = m_depth > 1 ? "holds" : "is";
  switch (reason) {
    case Rejection::wrongKind:
      return fmt::format(
          "{} {}, which is no {}{}", verb, quote(m_at),
          expected.family == fc::TypeFamily::list || expected.family == fc::TypeFamily::tuple
              ? "list of "
              : "",
          expectedType());
    case Rejection::wrongClass:
      return fmt::format("refers to #{}, an {}, where an {} belongs", m_reference, found,
                         expectedType());
    case Rejection::unknownEnumerator:
      return expected.enumeration
                 ? fmt::format("{} .{}., which is none of its {} values", verb,
                               ProblemLog::quote(found), expected.enumeration->names.size())
                 : fmt::format("{} .{}., which is no truth value", verb, ProblemLog::quote(found));
    case Rejection::unknownType:
      return fmt::format("{} of type {}, which {} doesn't take", verb, ProblemLog::quote(found),
                         expectedType());
    case Rejection::wrongCount:
      return fmt::format("{} {}, which has more or fewer numbers than belong there", verb,
                         quote(m_list));
    case Rejection::outOfRange:
      return fmt::format("{} {}, which no {} can be", verb, quote(m_value), expectedType());
  }
  return {};
}

std::string_view ParameterSource::expectedType() const {
  return m_attribute->attribute ? m_attribute->attribute->typeName : "value";
}

std::string ParameterSource::attributePrefix() const {
  return m_attribute->name.empty()
             ? std::string()
             : fmt::format("attribute {} ({}) ", m_position, m_attribute->name);
}

std::string ParameterSource::quote(const char* value) const {
  const char* end = value;
  std::size_t depth = 0;
  bool inText = false;
  for (;
       static_cast<std::size_t>(end - value) <= ProblemLog::maxQuote && *end != ';' && *end != '\n';
       ++end) {
    if (*end == '\'') inText = !inText;
    if (inText) continue;
    if (depth == 0 && (*end == ',' || *end == ')')) break;
    if (*end == '(') ++depth;
    if (*end == ')') --depth;
  }
  return ProblemLog::quote({value, static_cast<std::size_t>(end - value)});
}

}  // namespace qor::host::step
