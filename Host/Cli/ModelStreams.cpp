#include "Host/Cli/ModelStreams.h"

#include <cstddef>
#include <ostream>

namespace qor::host::cli {

bool isStandard(const std::filesystem::path& file) { return file == "-"; }

std::string readAll(std::istream& in) {
  constexpr std::size_t pieceSize = std::size_t{1} << 20;
  std::string text;
  while (in) {
    const std::size_t size = text.size();
    text.resize(size + pieceSize);
    in.read(text.data() + size, pieceSize);
    text.resize(size + static_cast<std::size_t>(in.gcount()));
  }
  return text;
}

step::WriteResult writeModel(const fc::Data& data, const std::filesystem::path& target,
                             const step::WriteOptions& options, Console& console) {
  return isStandard(target) ? step::writeStep(data, console.out, options)
                            : step::writeStepFile(data, target, options);
}

std::ostream& reportStream(const std::filesystem::path& target, Console& console) {
  return isStandard(target) ? console.err : console.out;
}

}  // namespace qor::host::cli
