#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

#include "Host/Cli/ModelDrawing.h"
#include "Host/Cli/Watch.h"
#include "Host/StepFile/TakeApart.h"
#include "Host/Targets/SceneTarget.h"
#include "Qor/Assert/Assert.h"

// Real models whose references, numbers and enumerators were exchanged: a walk over them, bodies
// and cuts included, must end in order, whatever it draws.

namespace {

using namespace qor;
using namespace qor::host;
using Random = std::minstd_rand;

void draw(const step::ReadResult& model) {
  std::ostringstream messages;
  cli::Watch watch(messages);
  cli::Console console{messages, messages, watch};
  targets::SceneTarget target({0.002, 6, 24});
  const auto status = fc::DrawStatus::createDefaultForProject(*model.data);
  cli::drawModel(model, {}, status, nullptr, target, console);
}

std::size_t endOfWord(std::string_view text, std::size_t begin) {
  const auto isPart = [](char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || std::strchr("#.+-_$", c);
  };
  while (begin < text.size() && text[begin] != '\0' && isPart(text[begin])) ++begin;
  return begin;
}

/// What may stand in the place of a reference, a number or an enumerator; the same for any other
/// word.
std::string otherWord(std::string_view word, std::string_view text, Random& random) {
  static constexpr std::array reals{"0.",   "-1.",   "1.E308", "1.E-308", "-1.E20",
                                    "1.E6", "0.001", "$",      "1.",      "1.E-5"};
  static constexpr std::array integers{"0", "-1", "1", "2", "3", "99999999", "4294967295", "$"};
  static constexpr std::array enumerators{".T.", ".F.", "$", ".NOTDEFINED.", ".UNION."};
  const auto oneOf = [&](const auto& all) { return std::string(all[random() % all.size()]); };
  if (word.size() > 1 && word.front() == '#') {
    if (random() % 3 == 0) return "$";
    const std::size_t other = text.find('#', random() % text.size());
    return other == text.npos ? "$"
                              : std::string(text.substr(other, endOfWord(text, other) - other));
  }
  if (word.size() > 2 && word.front() == '.' && word.back() == '.') return oneOf(enumerators);
  const bool isNumber = std::isdigit(static_cast<unsigned char>(word.back())) || word.back() == '.';
  if (word.find('.') != word.npos && isNumber) return oneOf(reals);
  return isNumber ? oneOf(integers) : std::string(word);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  Assert::setHandler([](const AssertInfo&) {});
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const step::ReadResult model = step::readStep({reinterpret_cast<const char*>(data), size});
  if (!model.data) return 0;
  draw(model);
  step::takeApart(*model.data);
  return 0;
}

/// Exchanges up to eight words behind the first comma of an instance.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
  Random random(seed);
  std::string text(reinterpret_cast<const char*>(data), size);
  const std::size_t begin = std::min(text.find("DATA;"), text.size());
  for (std::size_t left = 1 + random() % 8; left > 0 && begin < text.size(); --left) {
    const std::size_t from = begin + random() % (text.size() - begin);
    const std::size_t before = text.find_first_of("(,", from);
    if (before == text.npos) continue;
    const std::size_t end = endOfWord(text, before + 1);
    if (end == before + 1) continue;
    const std::string word = text.substr(before + 1, end - before - 1);
    text.replace(before + 1, word.size(), otherWord(word, text, random));
  }
  if (text.size() > maxSize) return size;
  std::memcpy(data, text.data(), text.size());
  return text.size();
}
