#pragma once

#include <cstdint>
#include <string>

namespace qor {

/// What one assertion reports: which rule was broken, and where in the code.
struct AssertInfo {
  static constexpr std::uint32_t plainReport = 0;
  /// A generic type met a case that it has no code for.
  static constexpr std::uint32_t unimplementedCase = 1;

  std::uint32_t kind = plainReport;
  std::string message{};
  std::string function{};  ///< qualified name, such as "qor::fc::Factory::objectFromIfcName"
  std::string source{};    ///< name of the source without folder and ending, such as "FcFactory"
  int line = 0;            ///< 1-based; 0 when unknown
  /// The object that breaks the rule, as the library that reports knows it: an `FcBase` in the
  /// engine. Null where the rule is nobody's. It lives as long as the report.
  const void* subject = nullptr;
  std::string subjectClass{};  ///< "IfcWall"; empty without a subject
};

}  // namespace qor
