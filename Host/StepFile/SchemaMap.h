#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "Fc/Reflection/ClassInfo.h"
#include "Fc/Reflection/LocalValue.h"
#include "Host/StepFile/Units/Measures.h"
#include "Host/StepFile/Units/UnitRole.h"

namespace qor::host::step {

struct OlderClass;

/// The schemas whose files are read. The values are bits of a set.
enum class SchemaVersion : std::uint8_t {
  ifc2x = 1,  ///< IFC2X and IFC2X2: as IFC2X3, with rows of their own
  ifc2x3 = 2,
  ifc4 = 4,              ///< with its addenda
  ifc4x1 = 8,            ///< IFC4X1 and IFC4X2
  ifc4x3Candidate = 16,  ///< the release candidates of IFC4X3
  ifc4x3 = 32,           ///< IFC4X3 up to its first addendum
  ifc4x3Add2 = 64,       ///< the schema of the model
};

/// By the name in a file's header, "IFC2X3" or "IFC4X3_ADD2", in any case; empty for others.
std::optional<SchemaVersion> schemaVersionFromName(std::string_view name);

/// The name that an enumerator of an older schema has in the model; empty where it has no place
/// there, and the same name for all others.
std::string_view enumeratorInModel(SchemaVersion version, std::string_view enumeration,
                                   std::string_view name);

/// How a value is taken that stands in another form than the attribute has.
enum class Conversion : std::uint8_t {
  none,
  mendText,   ///< a number or an enumerator, where a text belongs: its characters, with a report
  toText,     ///< an enumerator, where the model has a text
  toType,     ///< a plain value, where the model has a select
  toInteger,  ///< a real without a fraction, where the model has an integer
  unwrap,     ///< in a list, a reference to an instance that stands for elements of the list
  flatList,   ///< a list of numbers; one of lists has no place in the model
  rename,     ///< an enumerator that may have another name in the model
  keep,       ///< a number without an attribute, for `OlderClass::complete`
  toList,     ///< a reference, where the model has a list of them
};

/// One attribute as a file of some schema writes it.
struct FileAttribute {
  std::string_view name;
  /// Where it goes; null when it has no place in the model, or is converted by the reader itself.
  const fc::AttributeInfo* attribute = nullptr;
  /// The file must give a value.
  bool mandatory = false;
  /// The class derives it: the file gives `*`.
  bool derived = false;
  Conversion conversion = Conversion::none;
  /// The type for `Conversion::toType`, "IFCPARAMETERVALUE".
  std::string_view type{};
  /// Of which unit its numbers are.
  MeasureId measure = measure::none;
  /// What its text must be: a `DateTimeFormat::Form`, or 0.
  int dateForm = 0;
  /// It is that of `IfcRoot`.
  bool isGuid = false;
  /// Of `Conversion::toList`.
  const fc::AttributeInfo* list = nullptr;
};

/// The form of the dates of that type, "IFCDATE" or "IFCDATETIME"; 0 for any other type.
int dateFormOfType(std::string_view upperName);

/// One class as a file of some schema writes it.
struct FileClass {
  std::string_view upperName;  ///< in the file, "IFCDOORSTYLE"
  /// What its instances become; null when each stands for the elements of its first attribute.
  const fc::ClassInfo* info = nullptr;
  /// The row of the table of older classes that says so; null for a class as the model has it.
  const OlderClass* older = nullptr;

  /// In the order of the file.
  std::vector<FileAttribute> attributes{};
  /// The attributes of an enumeration that must have a value: an instance holds some value there
  /// also when its file gives none.
  std::vector<const fc::AttributeInfo*> enumerations{};
  /// Enumerators that all instances have, whatever their file says.
  std::vector<std::pair<const fc::AttributeInfo*, fc::LocalValue>> fixed{};
  UnitRole unitRole = UnitRole::none;
  bool isRoot = false;  ///< an `IfcRoot`
};

/// How the classes of one schema's files become those of the model.
class SchemaMap {
 public:
  explicit SchemaMap(SchemaVersion version);

  bool isCurrent() const { return m_version == SchemaVersion::ifc4x3Add2; }
  SchemaVersion version() const { return m_version; }

  /// The position of the class for `operator[]`; empty for a name that the schema doesn't have. A
  /// few nanoseconds.
  std::optional<std::size_t> find(std::string_view upperName) const;
  /// Its attributes are gathered on the first call.
  const FileClass& operator[](std::size_t position);
  /// The position of the class that an instance of this class is with these parameters: the same,
  /// but where the schema tells several kinds of instances apart by them.
  std::size_t variant(std::size_t position, std::string_view parameters) const;
  /// What instances of the class become; null when each stands for the elements of its first
  /// attribute, or has no place in the model.
  const fc::ClassInfo* info(std::size_t position) const;
  /// Instances of the class have no place in the model.
  bool isWithoutPlace(std::size_t position) const;

 private:
  class Names;

  FileClass make(std::size_t position) const;

  SchemaVersion m_version;
  const Names& m_names;
  /// Null for those that no instance asked for yet.
  std::vector<std::unique_ptr<const FileClass>> m_classes;
};

}  // namespace qor::host::step
