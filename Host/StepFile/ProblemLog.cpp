#include "Host/StepFile/ProblemLog.h"

#include <fmt/core.h>

#include <algorithm>
#include <utility>

namespace qor::host::step {

const char* nameOf(ProblemKind kind) {
  switch (kind) {
    case ProblemKind::truncated:
      return "truncated";
    case ProblemKind::syntax:
      return "syntax";
    case ProblemKind::openString:
      return "openString";
    case ProblemKind::openComment:
      return "openComment";
    case ProblemKind::badText:
      return "badText";
    case ProblemKind::badEscape:
      return "badEscape";
    case ProblemKind::duplicateNumber:
      return "duplicateNumber";
    case ProblemKind::duplicateGuid:
      return "duplicateGuid";
    case ProblemKind::unknownClass:
      return "unknownClass";
    case ProblemKind::attributeCount:
      return "attributeCount";
    case ProblemKind::missingValue:
      return "missingValue";
    case ProblemKind::danglingReference:
      return "danglingReference";
    case ProblemKind::leftOutReference:
      return "leftOutReference";
    case ProblemKind::wrongClass:
      return "wrongClass";
    case ProblemKind::wrongKind:
      return "wrongKind";
    case ProblemKind::unknownEnumerator:
      return "unknownEnumerator";
    case ProblemKind::unknownType:
      return "unknownType";
    case ProblemKind::wrongCount:
      return "wrongCount";
    case ProblemKind::outOfRange:
      return "outOfRange";
    case ProblemKind::badGuid:
      return "badGuid";
    case ProblemKind::unit:
      return "unit";
    case ProblemKind::badDate:
      return "badDate";
    case ProblemKind::derivedValue:
      return "derivedValue";
    case ProblemKind::further:
      return "further";
    case ProblemKind::noPlace:
      return "noPlace";
    case ProblemKind::takenAs:
      return "takenAs";
  }
  return "";
}

std::string Problem::toString() const {
  if (count == 1) return message;
  std::string others = std::to_string(count - 1);
  for (std::size_t i = others.size(); i > 3; i -= 3) others.insert(i - 3, ",");
  return fmt::format("{} And {} like it.", message, others);
}

std::string ProblemLog::quote(std::string_view text) {
  const bool cut = text.size() > maxQuote;
  std::string quoted(text.substr(0, maxQuote));
  std::ranges::replace_if(
      quoted, [](unsigned char c) { return c < 0x20 || c >= 0x7F; }, '?');
  return cut ? quoted + "..." : quoted;
}

std::vector<Problem> ProblemLog::release() {
  std::ranges::stable_sort(m_problems, {}, [](const Problem& problem) {
    return std::pair(problem.kind == ProblemKind::further, problem.line);
  });
  return std::move(m_problems);
}

Problem* ProblemLog::count(ProblemKind kind, const Place& place, std::string_view className,
                           std::string_view attribute) {
  const auto found = m_groups.find(KeyView(kind, className, attribute));
  if (found != m_groups.end()) {
    ++m_problems[found->second].count;
    return nullptr;
  }
  if (m_problems.size() >= maxGroups) {
    if (m_problems.size() == maxGroups) {
      m_problems.push_back(
          {ProblemKind::further,
           {},
           {},
           0,
           0,
           lineOf(place.offset),
           "Further problems, of other kinds or at other attributes, aren't listed."});
    }
    ++m_problems.back().count;
    return nullptr;
  }
  m_groups.emplace(Key(kind, className, attribute), m_problems.size());
  m_problems.push_back({kind,
                        std::string(className),
                        std::string(attribute),
                        1,
                        place.instance,
                        lineOf(place.offset),
                        {}});
  return &m_problems.back();
}

// Problems come in the order of the file, but for a few passes over it.
std::uint64_t ProblemLog::lineOf(std::size_t offset) {
  if (offset < m_countedTo) {
    m_countedTo = 0;
    m_line = 1;
  }
  const auto passed = m_text.substr(m_countedTo, offset - m_countedTo);
  m_line += static_cast<std::uint64_t>(std::ranges::count(passed, '\n'));
  m_countedTo = offset;
  return m_line;
}

std::string ProblemLog::prefix(const Place& place) {
  const std::uint64_t line = lineOf(place.offset);
  if (place.instance == 0)
    return fmt::format("line {}: {}{}", line, place.className, place.className.empty() ? "" : " ");
  if (place.className.empty()) return fmt::format("#{}, line {}: ", place.instance, line);
  return fmt::format("#{} {}, line {}: ", place.instance, place.className, line);
}

}  // namespace qor::host::step
