#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Fc/Reflection/ValueSource.h"
#include "Host/StepFile/InstanceTable.h"
#include "Host/StepFile/ProblemLog.h"
#include "Host/StepFile/Scanner.h"
#include "Host/StepFile/SchemaMap.h"
#include "Host/StepFile/Units/ModelUnits.h"

namespace qor::host::step {

/// The instances that stand for the elements of a list instead of for themselves, by number: the
/// text of the file from the list's first element on. Without text, one that has no place in the
/// model.
using Wrappers = std::unordered_map<std::uint64_t, std::string_view>;

/// The parameters of one statement after the other, as the attributes of the model take them:
/// `ValueSource` on the text itself.
///
/// What doesn't fit is reported to the log with the instance and the attribute, and left out.
/// Nothing here recurses, and no value is copied but into its member.
class ParameterSource final : public fc::ValueSource {
 public:
  ParameterSource(const InstanceTable& instances, const Wrappers& wrappers, ProblemLog& log,
                  SchemaVersion version = SchemaVersion::ifc4x3Add2)
      : m_instances(instances), m_wrappers(wrappers), m_log(log), m_version(version) {}

  /// Begins with the statement whose parameters open at `text`'s first character, a parenthesis. A
  /// semicolon outside strings and comments must stand somewhere in `text`. With `damaged` the end
  /// of the parameters was reported already.
  void start(std::string_view text, const Place& place, bool damaged);
  /// What comes next is the attribute at that position, 1-based.
  void setAttribute(const FileAttribute& attribute, std::size_t position) {
    m_attribute = &attribute;
    m_position = position;
    m_conversion = attribute.conversion;
    m_unit = m_units ? m_units->find(attribute.measure) : nullptr;
    m_dateForm = attribute.dateForm;
  }
  /// From now on numbers are converted from these units, each by the measure of its attribute; null
  /// to take them as they are. Must outlive this.
  void setUnits(const ModelUnits* units) { m_units = units; }
  /// In selects, values of this type may be reals without a fraction where the model has integers.
  void setIntegralType(std::string_view upperName) { m_integralType = upperName; }

  /// Reports to the log, with the attribute that is being read in front of what `makeDetail` gives.
  template <class MakeDetail>
  void report(ProblemKind kind, MakeDetail&& makeDetail) {
    m_log.add(kind, m_place, m_attribute->name, [&] { return attributePrefix() + makeDetail(); });
  }
  /// Whether the parameters came to their end as they should; otherwise that has been reported.
  bool finish();
  bool isDamaged() const { return m_damaged; }

  Kind next() override;
  void skip() override;
  bool takeReal(double& out) override;
  bool takeInteger(std::int64_t& out) override;
  void takeText(std::string& out) override;
  std::string_view takeEnumerator() override;
  void takeBinary(std::vector<std::uint8_t>& out) override;
  const std::shared_ptr<fc::FcBase>* takeEntity() override;
  void openList() override;
  bool more() override;
  std::string_view openTyped() override;
  void closeTyped() override;
  void rejected(fc::Rejection reason, std::string_view found,
                const fc::TypeOperations& expected) override;

  /// The value that comes next, as it stands in the file, shortened.
  std::string quoteNext() { return quote(m_scanner.skipSpace(m_at)); }

  /// The characters of the value that was taken last, as they stand in the file, without
  /// apostrophes.
  std::string_view lastValue() const;

 private:
  Kind plainKind();
  Kind convertedKind(Kind kind);
  Kind numberKind() const;
  Kind textKind();
  Kind enumeratorKind() const;
  Kind binaryKind() const;
  Kind typedKind();
  bool endsNumber();
  void takeUnquoted(std::string& out);
  bool endsWrapper() const;
  bool closeList();
  void passOver();
  std::string_view plainEnumerator();
  bool holdsLists();
  bool isWithoutPlace(std::uint64_t number) const;
  void closeParenthesis();
  std::string_view typeInstead(std::string_view upperName);
  bool unwrap();
  void resume();
  void giveUp();
  void useType(std::string_view upperName);
  void checkDate(const std::string& text);
  std::string quote(const char* value) const;
  std::string attributePrefix() const;
  std::string_view expectedType() const;
  void reportText(ProblemKind kind, const char* message);
  std::string describe(fc::Rejection reason, std::string_view found,
                       const fc::TypeOperations& expected) const;

  const InstanceTable& m_instances;
  const Wrappers& m_wrappers;
  ProblemLog& m_log;
  SchemaVersion m_version;

  Scanner m_scanner{std::string_view()};
  const char* m_at = nullptr;
  bool m_first = false;
  int m_depth = 0;

  /// The last value, list and string that `next()` and `openList()` met.
  const char* m_value = nullptr;
  const char* m_list = nullptr;
  const char* m_stringOpen = nullptr;
  StringExtent m_string{};
  std::uint64_t m_reference = 0;

  /// Behind the reference to the wrapper whose list is being read, null when none is; its text, and
  /// the depth of the list in which it stands.
  const char* m_resumeAt = nullptr;
  Scanner m_resumeScanner{std::string_view()};
  int m_resumeDepth = 0;

  Place m_place{};
  const FileAttribute* m_attribute = nullptr;
  std::size_t m_position = 0;
  bool m_damaged = false;
  std::string_view m_integralType;
  /// Of the value that comes next.
  Conversion m_conversion = Conversion::none;
  /// The value that came last stands without its type in the file.
  bool m_addsType = false;
  const ModelUnits* m_units = nullptr;
  /// Of the numbers that come next; null where they are SI.
  const UnitConversion* m_unit = nullptr;
  /// Of the text that comes next; see `FileAttribute`.
  int m_dateForm = 0;
};

}  // namespace qor::host::step
