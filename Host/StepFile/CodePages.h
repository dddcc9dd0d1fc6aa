#pragma once

namespace qor::host::step {

/// The character that \S\ followed by `code` (ASCII) means in page `page`: 'A' for ISO 8859-1 up to
/// 'I' for ISO 8859-9. 0 where the page has none.
char32_t codePageCharacter(char page, char code);

}  // namespace qor::host::step
