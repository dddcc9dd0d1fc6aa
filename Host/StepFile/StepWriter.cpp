#include "Host/StepFile/StepWriter.h"

#include <fmt/chrono.h>

#include <ctime>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

#include "Fc/Reflection/TypeOperations.h"
#include "Host/StepFile/EntityNumbers.h"
#include "Host/StepFile/Numbers.h"
#include "Host/StepFile/ParameterSink.h"
#include "Host/StepFile/Progress.h"
#include "Qor/Platform/ReplacingFile.h"

namespace qor::host::step {

namespace {

/// So many bytes are handed on at once.
constexpr std::size_t pieceSize = std::size_t{1} << 20;

/// The attributes of one class in the order of the file; null for one that the class derives.
using Columns = std::vector<const fc::AttributeInfo*>;

Columns columnsOf(const fc::ClassInfo& info) {
  Columns columns;
  info.forEachAttribute([&](const fc::AttributeInfo& attribute) {
    columns.push_back(info.isDerived(attribute.name) ? nullptr : &attribute);
  });
  return columns;
}

std::string currentTime() {
  return fmt::format("{:%Y-%m-%dT%H:%M:%S}", fmt::gmtime(std::time(nullptr)));
}

class Writer {
 public:
  /// Takes a piece of the file; gives why it can't, or nothing.
  using Put = std::function<std::string(std::string_view)>;

  Writer(const fc::Data& data, const WriteOptions& options, Put put)
      : m_options(options),
        m_put(std::move(put)),
        m_numbers(data, options.numbers),
        m_sink(m_buffer, [this](const fc::FcBase& entity) { return m_numbers.numberOf(entity); }) {}

  WriteResult run() {
    m_buffer.reserve(pieceSize + pieceSize / 4);
    writeHeader();
    m_buffer += "DATA;\n";
    Progress progress(m_options.progress, m_numbers.size());
    for (std::size_t i = 0; i < m_numbers.size() && m_result.failure.empty(); ++i) {
      writeInstance(i);
      progress.advance(i);
      if (m_buffer.size() >= pieceSize) flush();
    }
    m_buffer += "ENDSEC;\nEND-ISO-10303-21;\n";
    flush();
    m_result.instances = m_numbers.size();
    m_result.notFinite = m_sink.notFinite();
    return std::move(m_result);
  }

 private:
  void writeHeader() {
    const Header& header = m_options.header;
    m_buffer += "ISO-10303-21;\nHEADER;\n";
    m_sink.openTyped("FILE_DESCRIPTION");
    writeTexts(header.description);
    m_sink.text(header.implementationLevel);
    closeStatement();
    m_sink.openTyped("FILE_NAME");
    m_sink.text(header.name);
    m_sink.text(header.timeStamp.empty() ? currentTime() : header.timeStamp);
    writeTexts(header.author);
    writeTexts(header.organization);
    m_sink.text(header.preprocessorVersion);
    m_sink.text(header.originatingSystem);
    m_sink.text(header.authorization);
    closeStatement();
    m_sink.openTyped("FILE_SCHEMA");
    writeTexts({"IFC4X3_ADD2"});
    closeStatement();
    m_buffer += "ENDSEC;\n";
  }

  // These lists must have an element.
  void writeTexts(const std::vector<std::string>& texts) {
    m_sink.openList();
    for (const std::string& text : texts) m_sink.text(text);
    if (texts.empty()) m_sink.text({});
    m_sink.closeList();
  }

  void writeInstance(std::size_t position) {
    const fc::FcBase& entity = m_numbers.entity(position);
    const fc::ClassInfo& info = entity.classInfo();
    m_buffer.push_back('#');
    appendUnsigned(m_buffer, m_numbers.number(position));
    m_buffer.push_back('=');
    m_sink.openTyped(info.upperName.view());
    for (const fc::AttributeInfo* attribute : columns(info)) {
      if (attribute)
        attribute->type->write(attribute->of(entity), m_sink);
      else
        m_sink.derived();
    }
    closeStatement();
  }

  void closeStatement() {
    m_sink.closeTyped();
    m_sink.startOver();
    m_buffer += ";\n";
  }

  const Columns& columns(const fc::ClassInfo& info) {
    if (m_columns.size() <= info.classId) m_columns.resize(info.classId + 1);
    std::optional<Columns>& known = m_columns[info.classId];
    if (!known) known = columnsOf(info);
    return *known;
  }

  void flush() {
    if (m_result.failure.empty()) m_result.failure = m_put(m_buffer);
    m_buffer.clear();
  }

  const WriteOptions& m_options;
  Put m_put;
  EntityNumbers m_numbers;
  std::string m_buffer;
  ParameterSink m_sink;
  std::vector<std::optional<Columns>> m_columns;
  WriteResult m_result;
};

}  // namespace

WriteResult writeStepFile(const fc::Data& data, const std::filesystem::path& target,
                          const WriteOptions& options) {
  ReplacingFile file;
  WriteResult result;
  result.failure = file.open(target);
  if (!result.failure.empty()) return result;
  result =
      Writer(data, options, [&file](std::string_view piece) { return file.write(piece); }).run();
  if (result.failure.empty()) result.failure = file.commit();
  return result;
}

WriteResult writeStep(const fc::Data& data, std::ostream& out, const WriteOptions& options) {
  return Writer(data, options,
                [&out](std::string_view piece) {
                  out.write(piece.data(), static_cast<std::streamsize>(piece.size()));
                  return std::string(out ? "" : "the stream takes no more");
                })
      .run();
}

WriteResult writeStep(const fc::Data& data, std::string& out, const WriteOptions& options) {
  out.clear();
  return Writer(data, options,
                [&out](std::string_view piece) {
                  out += piece;
                  return std::string();
                })
      .run();
}

}  // namespace qor::host::step
