#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "Host/StepFile/InstanceTable.h"
#include "Host/StepFile/ParameterSource.h"
#include "Host/StepFile/ProblemLog.h"
#include "Host/StepFile/Progress.h"
#include "Host/StepFile/Scanner.h"
#include "Host/StepFile/SchemaMap.h"

namespace qor::host::step {

/// The first of the two passes over a file: finds the instances, makes an entity for each, and
/// notes where its parameters are.
///
/// Nothing is parsed but "#12=IFCWALL("; the parameters are passed over up to the semicolon.
class InstanceCollector {
 public:
  /// The parameters of one instance, from their parenthesis on. A semicolon outside of strings and
  /// comments stands in `text`.
  struct Parameters {
    std::string_view text;
    std::size_t offset;  ///< in the file
    bool isMended;       ///< the semicolon was missing; that has been reported
    std::size_t fileClass;
  };

  InstanceCollector(std::string_view text, const SchemaMap& schema, ProblemLog& log,
                    Progress& progress)
      : m_text(text), m_scanner(text), m_schema(schema), m_log(log), m_progress(progress) {}

  /// Walks through the sections from `at`, behind the header, to the end. False when none of them
  /// is DATA.
  bool run(const char* at);

  InstanceTable& instances() { return m_instances; }
  const Wrappers& wrappers() const { return m_wrappers; }
  /// Of the instance at that position of `instances()`.
  Parameters parameters(std::size_t position) const;
  std::size_t fileClass(std::size_t position) const { return m_statements[position].fileClass; }

 private:
  struct Statement {
    std::uint64_t offset : 47;  ///< of the parameters in the text, or their position in `m_mended`
    std::uint64_t isMended : 1;
    std::uint64_t fileClass : 16;  ///< `noClass` for an instance that was left out
  };
  static constexpr std::uint64_t noClass = 0xFFFF;
  struct Mended {
    std::size_t offset;
    std::string text;
  };

  const char* collectSection(const char* at);
  const char* collectInstance(const char* hash);
  const char* addInstance(const Place& place, std::size_t fileClass, const char* parameters);
  void add(std::uint64_t number, std::shared_ptr<fc::FcBase> entity, std::size_t offset,
           bool isMended, std::size_t fileClass);
  void addLeftOut(const Place& place) {
    add(place.instance, nullptr, place.offset, false, noClass);
  }
  std::size_t mend(const Place& place, const char* parameters, const char* end);
  const char* passOverNumber(const Place& place, const char* numberEnd);
  void tellWhatIsBehind(const char* at);
  const char* passOver(const Place& place, const char* at);
  void index();
  bool isWrapper(std::size_t position) const;
  void addWrapper(std::size_t position);

  const char* behindStatement(const char* at);
  std::size_t offsetOf(const char* at) const {
    return static_cast<std::size_t>(at - m_text.data());
  }
  bool startsWith(const char* at, std::string_view start) const {
    return m_text.substr(offsetOf(at), start.size()) == start;
  }

  std::string_view m_text;
  Scanner m_scanner;
  const SchemaMap& m_schema;
  ProblemLog& m_log;
  Progress& m_progress;
  InstanceTable m_instances;
  std::vector<Statement> m_statements;
  std::deque<Mended> m_mended;
  Wrappers m_wrappers;
  bool m_isTruncated = false;
};

}  // namespace qor::host::step
