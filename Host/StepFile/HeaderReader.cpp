#include "Host/StepFile/HeaderReader.h"

#include <fmt/core.h>

#include <utility>
#include <vector>

#include "Host/StepFile/InstanceTable.h"
#include "Host/StepFile/ParameterSource.h"
#include "Host/StepFile/Scanner.h"

namespace qor::host::step {

namespace {

using Kind = fc::ValueSource::Kind;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view magic = "ISO-10303-21;";

/// Takes the parameters of one header statement one after the other.
class Parameters {
 public:
  explicit Parameters(ParameterSource& source) : m_source(source) { m_source.openList(); }

  std::string text() { return m_source.more() ? takeText() : std::string(); }

  std::vector<std::string> texts() {
    std::vector<std::string> result;
    if (!m_source.more()) return result;
    if (m_source.next() != Kind::list) {
      result.push_back(takeText());
      return result;
    }
    m_source.openList();
    while (m_source.more()) result.push_back(takeText());
    return result;
  }

 private:
  std::string takeText() {
    std::string text;
    if (m_source.next() == Kind::text)
      m_source.takeText(text);
    else
      m_source.skip();
    return text;
  }

  ParameterSource& m_source;
};

class HeaderReader {
 public:
  HeaderReader(std::string_view text, ProblemLog& log)
      : m_text(text), m_scanner(text), m_log(log), m_source(m_noInstances, m_noWrappers, log) {}

  HeaderResult run() {
    const char* at =
        m_scanner.begin() + (m_text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
    at = m_scanner.skipSpace(at);
    if (at == m_scanner.end()) return failed("it is empty");
    if (!startsWith(at, magic)) {
      const char* start = findStart(at);
      if (!start) return failed(noStepFile(at));
      m_log.add(ProblemKind::syntax, {offsetOf(at)}, {}, [&] {
        return fmt::format("\"{}\" stands before {} and was passed over.",
                           ProblemLog::quote({at, static_cast<std::size_t>(start - at)}), magic);
      });
      at = start;
    }
    at = m_scanner.skipSpace(behindStatement(at));
    while (at != m_scanner.end() && !startsWith(at, "ENDSEC") && !startsWith(at, "DATA"))
      at = m_scanner.skipSpace(readStatement(at));
    if (startsWith(at, "ENDSEC")) at = behindStatement(at);
    m_result.end = offsetOf(at);
    return std::move(m_result);
  }

 private:
  HeaderResult failed(std::string message) {
    m_result.failure = std::move(message);
    return std::move(m_result);
  }

  // A stray character or the first lines of a mail cost nothing.
  const char* findStart(const char* at) const {
    constexpr std::size_t farthest = 1000;
    const std::size_t found = m_text.substr(offsetOf(at), farthest).find(magic);
    return found == std::string_view::npos ? nullptr : at + found;
  }

  std::string noStepFile(const char* at) const {
    const std::string_view start = m_text.substr(offsetOf(at));
    if (m_text.starts_with("\x1F\x8B")) return "it is packed by gzip, no STEP file; unpack it first";
    return fmt::format("it is no STEP file: it begins with \"{}\", not with {}",
                       ProblemLog::quote(start.substr(0, 20)), magic);
  }

  const char* readStatement(const char* name) {
    const char* nameEnd = name;
    while (nameEnd != m_scanner.end() && isNameChar(*nameEnd)) ++nameEnd;
    const char* parameters = m_scanner.skipSpace(nameEnd);
    const char* end = m_scanner.statementEnd(parameters);
    const bool isClosed = end != m_scanner.end() && *end == ';';
    if (parameters != end && *parameters == '(') {
      const std::string_view entity(name, static_cast<std::size_t>(nameEnd - name));
      readParameters(entity, std::string(parameters, end) + "\n;", {offsetOf(name), 0, entity});
    }
    return isClosed ? end + 1 : end;
  }

  void readParameters(std::string_view entity, const std::string& text, const Place& place) {
    m_source.start(text, place, false);
    Parameters parameters(m_source);
    Header& header = m_result.header;
    if (entity == "FILE_DESCRIPTION") {
      header.description = parameters.texts();
      header.implementationLevel = parameters.text();
    } else if (entity == "FILE_NAME") {
      header.name = parameters.text();
      header.timeStamp = parameters.text();
      header.author = parameters.texts();
      header.organization = parameters.texts();
      header.preprocessorVersion = parameters.text();
      header.originatingSystem = parameters.text();
      header.authorization = parameters.text();
    } else if (entity == "FILE_SCHEMA") {
      header.schemas = parameters.texts();
    }
  }

  bool startsWith(const char* at, std::string_view start) const {
    return m_text.substr(offsetOf(at), start.size()) == start;
  }
  const char* behindStatement(const char* at) {
    at = m_scanner.statementEnd(at);
    return at != m_scanner.end() && *at == ';' ? at + 1 : at;
  }
  std::size_t offsetOf(const char* at) const {
    return static_cast<std::size_t>(at - m_text.data());
  }

  std::string_view m_text;
  Scanner m_scanner;
  ProblemLog& m_log;
  InstanceTable m_noInstances;
  Wrappers m_noWrappers;
  ParameterSource m_source;
  HeaderResult m_result;
};

}  // namespace

HeaderResult readHeader(std::string_view text, ProblemLog& log) {
  return HeaderReader(text, log).run();
}

}  // namespace qor::host::step
