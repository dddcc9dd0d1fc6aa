#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace qor::host::step {

/// What can be wrong with a STEP file that was read all the same. Problems of one kind at one
/// attribute of one class are counted as one.
enum class ProblemKind : std::uint8_t {
  truncated,        ///< the text ends too early
  syntax,           ///< something that the form of a STEP file has no place for
  openString,       ///< a string without its closing apostrophe
  openComment,      ///< a comment without its end
  badText,          ///< bytes that are no characters
  badEscape,        ///< a backslash in a text that begins no escape, or one that means no character
  duplicateNumber,  ///< two instances with one number
  duplicateGuid,    ///< two roots with one guid
  unknownClass,     ///< a class that the schema doesn't have, or an abstract one
  attributeCount,   ///< more or fewer attributes than the class has
  missingValue,     ///< no value where the schema asks for one
  danglingReference,  ///< a reference to a number that no instance has
  leftOutReference,   ///< a reference to an instance that was left out itself
  wrongClass,         ///< a reference to an instance of a class that the attribute doesn't take
  wrongKind,          ///< a text where a number belongs, and the like
  unknownEnumerator,  ///< a name that the enumeration doesn't have
  unknownType,        ///< a type that the select doesn't have
  wrongCount,         ///< more or fewer numbers than belong there
  outOfRange,         ///< a number too large
  badGuid,            ///< a guid that is none, or not there
  unit,               ///< a unit that contradicts itself or others, or has no size
  badDate,            ///< a text that is no date, where one belongs
  derivedValue,       ///< a value where the class derives it
  further,            ///< what came when the log was full
  // What is nobody's fault, and said for who wants to know: notes.
  noPlace,  ///< a value or an instance of an older schema that has no place in IFC4X3_ADD2
  takenAs,  ///< what the model holds in another form than the file
};

/// A sound file may have it.
constexpr bool isNote(ProblemKind kind) { return kind >= ProblemKind::noPlace; }

/// "unknownClass": for programs that read reports.
const char* nameOf(ProblemKind kind);

/// All problems of one kind at one attribute of one class.
struct Problem {
  ProblemKind kind;
  std::string className;  ///< "IFCWALL"; empty where no instance is concerned
  std::string attribute;  ///< "PredefinedType"; empty where none is concerned
  std::uint64_t count;
  std::uint64_t instance;  ///< number of the first one; 0 where no instance is concerned
  std::uint64_t line;      ///< of the first one, 1-based
  std::string message;     ///< of the first one: what was found, what was expected, what was done

  /// The message and, when there was more than one, how often it came.
  std::string toString() const;
};

/// Where in a file something stands.
struct Place {
  std::size_t offset;  ///< in bytes from the beginning
  std::uint64_t instance = 0;
  std::string_view className{};
};

/// Collects the problems of one file. Takes little memory whatever the file holds: what differs
/// only in its instance is counted, texts of the file are cut to a line, and beyond `maxGroups`
/// different ones all others are counted as one.
class ProblemLog {
 public:
  static constexpr std::size_t maxGroups = 1000;
  /// So many characters of a text of the file stand in a message.
  static constexpr std::size_t maxQuote = 60;

  /// `text` is that of the file, to count lines in; it must live as long as problems are added.
  explicit ProblemLog(std::string_view text) : m_text(text) {}

  /// `makeDetail()` gives the message behind the place, "attribute 9 (...) is ...; left out."; it
  /// is called for the first problem of a group only.
  template <class MakeDetail>
  void add(ProblemKind kind, const Place& place, std::string_view attribute,
           MakeDetail&& makeDetail) {
    if (Problem* fresh = count(kind, place, place.className, attribute))
      fresh->message = prefix(place) + makeDetail();
  }
  /// The same, for what is worth one line in a file however many classes show it.
  template <class MakeDetail>
  void addForFile(ProblemKind kind, const Place& place, MakeDetail&& makeDetail) {
    if (Problem* fresh = count(kind, place, {}, {})) fresh->message = prefix(place) + makeDetail();
  }

  /// All of them, in the order of their first lines; what was only counted comes last.
  std::vector<Problem> release();

  /// `text` in one line of at most `maxQuote` characters, ASCII only.
  static std::string quote(std::string_view text);

 private:
  using Key = std::tuple<ProblemKind, std::string, std::string>;
  using KeyView = std::tuple<ProblemKind, std::string_view, std::string_view>;

  struct KeyLess {
    using is_transparent = void;
    bool operator()(const KeyView& a, const KeyView& b) const { return a < b; }
  };

  Problem* count(ProblemKind kind, const Place& place, std::string_view className,
                 std::string_view attribute);
  std::uint64_t lineOf(std::size_t offset);
  std::string prefix(const Place& place);

  std::string_view m_text;
  std::size_t m_countedTo = 0;
  std::uint64_t m_line = 1;
  std::map<Key, std::size_t, KeyLess> m_groups;
  std::vector<Problem> m_problems;
};

}  // namespace qor::host::step
