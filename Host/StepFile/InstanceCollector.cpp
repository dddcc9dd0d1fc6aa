#include "Host/StepFile/InstanceCollector.h"

#include <fmt/core.h>

#include <memory>
#include <utility>

#include "Host/StepFile/Numbers.h"

namespace qor::host::step {

namespace {

/// More of a name than any class has is of no use to a message.
constexpr std::size_t longestName = 64;

/// Leaves room for numbers behind those of a file.
constexpr std::uint64_t largestNumber = std::uint64_t{1} << 63;

const char* skipName(const char* at, const char* end) {
  while (at != end && isNameChar(*at)) ++at;
  return at;
}

}  // namespace

bool InstanceCollector::run(const char* at) {
  bool hasData = false;
  bool isComplete = false;
  while (!isComplete && (at = m_scanner.skipSpace(at)) != m_scanner.end()) {
    const bool isData = startsWith(at, "DATA");
    isComplete = startsWith(at, "END-ISO-10303-21");
    hasData = hasData || isData;
    at = behindStatement(at);
    if (isData) at = collectSection(at);
  }
  if (!isComplete && !m_isTruncated) {
    m_log.add(ProblemKind::truncated, {m_text.size()}, {},
              [] { return "the file ends without END-ISO-10303-21; it seems to be truncated."; });
  }
  tellWhatIsBehind(at);
  if (const auto comment = m_scanner.openComment()) {
    m_log.add(ProblemKind::openComment, {*comment}, {}, [] {
      return "the comment that begins here isn't closed; passed over up to the end of the line.";
    });
  }
  index();
  return hasData;
}

void InstanceCollector::tellWhatIsBehind(const char* at) {
  at = m_scanner.skipSpace(at);
  if (at == m_scanner.end()) return;
  const std::string_view rest = m_text.substr(offsetOf(at));
  m_log.add(ProblemKind::syntax, {offsetOf(at)}, {}, [rest] {
    return fmt::format("\"{}\" stands behind END-ISO-10303-21; and was passed over.",
                       ProblemLog::quote(rest.substr(0, rest.find('\n'))));
  });
}

const char* InstanceCollector::behindStatement(const char* at) {
  at = m_scanner.statementEnd(at);
  return at != m_scanner.end() && *at == ';' ? at + 1 : at;
}

const char* InstanceCollector::collectSection(const char* at) {
  while ((at = m_scanner.skipSpace(at)) != m_scanner.end()) {
    if (*at == '#') {
      at = collectInstance(at);
      m_progress.advance(offsetOf(at));
    } else if (startsWith(at, "ENDSEC") || startsWith(at, "END-ISO-10303-21")) {
      return startsWith(at, "ENDSEC") ? behindStatement(at) : at;
    } else {
      at = passOver({offsetOf(at)}, at);
    }
  }
  return at;
}

const char* InstanceCollector::collectInstance(const char* hash) {
  const char* end = m_scanner.end();
  const char* at = hash + 1;
  Place place{offsetOf(hash)};
  if (at == end || !isDigit(*at)) return passOver(place, hash);
  place.instance = readInstanceNumber(at, end);
  if (place.instance > largestNumber) return passOverNumber(place, at);
  at = m_scanner.skipSpace(at);
  if (at == end || *at != '=') return passOver(place, at);

  const char* name = m_scanner.skipSpace(at + 1);
  const char* nameEnd = skipName(name, end);
  at = m_scanner.skipSpace(nameEnd);
  if (name == nameEnd || at == end || *at != '(') {
    addLeftOut(place);
    return passOver(place, name);
  }
  const std::string_view className(name, static_cast<std::size_t>(nameEnd - name));
  place.className = className.substr(0, longestName);
  const auto fileClass = m_schema.find(className);
  if (fileClass) return addInstance(place, *fileClass, at);

  m_log.add(ProblemKind::unknownClass, place, {},
            [] { return "is of no class that the model has instances of; left out."; });
  addLeftOut(place);
  return behindStatement(at);
}

void InstanceCollector::add(std::uint64_t number, std::shared_ptr<fc::FcBase> entity,
                            std::size_t offset, bool isMended, std::size_t fileClass) {
  constexpr std::uint64_t offsetBits = (std::uint64_t{1} << 47) - 1;
  m_instances.add(number, std::move(entity));
  m_statements.push_back({offset & offsetBits, isMended, fileClass & noClass});
}

const char* InstanceCollector::addInstance(const Place& place, std::size_t fileClass,
                                           const char* parameters) {
  const char* end = m_scanner.statementEnd(parameters);
  fileClass = m_schema.variant(fileClass, {parameters, end});
  const fc::ClassInfo* info = m_schema.info(fileClass);
  if (m_schema.isWithoutPlace(fileClass))
    m_log.add(ProblemKind::noPlace, place, {},
              [] { return "is of a class that the model has nothing like; left out."; });
  const bool isClosed = end != m_scanner.end() && *end == ';';
  const std::size_t offset = isClosed ? offsetOf(parameters) : mend(place, parameters, end);
  add(place.instance, info ? info->create() : nullptr, offset, !isClosed, fileClass);
  return isClosed ? end + 1 : end;
}

// The semicolon stands in a line of its own, where no comment that isn't closed can hide it.
std::size_t InstanceCollector::mend(const Place& place, const char* parameters, const char* end) {
  m_isTruncated = end == m_scanner.end();
  m_log.add(m_isTruncated ? ProblemKind::truncated : ProblemKind::syntax, place, {}, [this] {
    return m_isTruncated ? "the file ends inside of this instance; it has what stands there of its "
                           "attributes."
                         : "has no semicolon before the next instance; read up to there.";
  });
  m_mended.push_back({offsetOf(parameters), std::string(parameters, end) + "\n;"});
  return m_mended.size() - 1;
}

const char* InstanceCollector::passOverNumber(const Place& place, const char* numberEnd) {
  const char* hash = m_text.data() + place.offset;
  m_log.add(ProblemKind::syntax, {place.offset}, {}, [&] {
    return fmt::format("{} is a number beyond {}; the instance is passed over.",
                       ProblemLog::quote({hash, static_cast<std::size_t>(numberEnd - hash)}),
                       largestNumber);
  });
  return behindStatement(numberEnd);
}

const char* InstanceCollector::passOver(const Place& place, const char* at) {
  const char* behind = behindStatement(at);
  m_isTruncated = behind == m_scanner.end();
  m_log.add(m_isTruncated ? ProblemKind::truncated : ProblemKind::syntax, place, {}, [&] {
    const std::string_view text(at, static_cast<std::size_t>(behind - at));
    return fmt::format("\"{}\" {}; passed over.",
                       ProblemLog::quote(text.substr(0, text.find('\n'))),
                       m_isTruncated ? "is where the file ends" : "is no instance of a class");
  });
  return behind;
}

InstanceCollector::Parameters InstanceCollector::parameters(std::size_t position) const {
  const Statement& statement = m_statements[position];
  if (!statement.isMended) {
    const std::string_view text(m_text.data() + statement.offset, m_text.size() - statement.offset);
    return {text, statement.offset, false, statement.fileClass};
  }
  const Mended& mended = m_mended[statement.offset];
  return {mended.text, mended.offset, true, statement.fileClass};
}

void InstanceCollector::index() {
  m_statements.shrink_to_fit();
  m_instances.index([this](std::size_t position) {
    NumberedEntity& instance = m_instances[position];
    const std::string_view className =
        instance.entity ? instance.entity->ifcNameUpper() : std::string_view();
    m_log.add(ProblemKind::duplicateNumber,
              {parameters(position).offset, instance.number, className}, {},
              [] { return "has the number of an earlier instance, which stays; left out."; });
    instance.entity.reset();
  });
  if (m_schema.isCurrent()) return;
  for (std::size_t i = 0; i < m_instances.size(); ++i) {
    const bool isFirst = m_instances.find(m_instances[i].number) == &m_instances[i].entity;
    if (isFirst && isWrapper(i)) addWrapper(i);
  }
}

bool InstanceCollector::isWrapper(std::size_t position) const {
  const Statement& statement = m_statements[position];
  return statement.fileClass != noClass && !m_schema.info(statement.fileClass);
}

void InstanceCollector::addWrapper(std::size_t position) {
  const auto [text, offset, isMended, fileClass] = parameters(position);
  if (m_schema.isWithoutPlace(fileClass)) {
    m_wrappers.emplace(m_instances[position].number, std::string_view());
    return;
  }
  Scanner scanner(text);
  const char* list = scanner.skipSpace(text.data() + 1);
  if (*list != '(') return;
  const char* first = list + 1;
  m_wrappers.emplace(m_instances[position].number,
                     text.substr(static_cast<std::size_t>(first - text.data())));
}

}  // namespace qor::host::step
