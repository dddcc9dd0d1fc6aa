#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Qor/Platform/Export.h"
#include "Qor/Xml/Element.h"

namespace pugi {
class xml_document;
}

namespace qor::xml {

/// One XML document in memory. External entities aren't followed and no schema is asked; a document
/// may be nested as deeply as memory allows.
class QOR_API File {
 public:
  File();
  File(File&&) noexcept;
  File& operator=(File&&) noexcept;
  ~File();

  /// A document that holds nothing but this root. Nothing, and an empty document, for an empty
  /// name.
  std::optional<Element> create(std::string_view rootName);

  /// Reads a whole document in UTF-8, UTF-16 or UTF-32, as its first bytes tell. False when it
  /// isn't well-formed or has no root: `error` says why and the document is empty.
  bool parse(std::istream& stream, const std::string& fileName);
  /// "status.xml, byte 120: Start-end tags mismatch"; empty after success.
  const std::string& error() const { return m_error; }

  /// Nothing for an empty document.
  std::optional<Element> root() const;
  /// All elements of this name, the root included, in the order of their start tags.
  std::vector<Element> ElementsByTagNameGet(std::string_view name) const;

  /// Writes UTF-8 without a byte order mark, lines end with a line feed, children are indented. The
  /// same document gives the same bytes.
  void save(std::ostream& stream) const;

 private:
  std::unique_ptr<pugi::xml_document> m_document;
  std::string m_error;
};

}  // namespace qor::xml
