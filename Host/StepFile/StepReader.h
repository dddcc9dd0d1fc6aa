#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Fc/Data.h"
#include "Host/StepFile/Header.h"
#include "Host/StepFile/InstanceTable.h"
#include "Host/StepFile/ProblemLog.h"
#include "Host/StepFile/ReplacedGuid.h"
#include "Host/StepFile/Units/FileUnit.h"

namespace qor::host::step {

struct ReadOptions {
  /// Gives the numbers of the file's instances; takes 24 bytes each.
  bool keepNumbers = true;
  /// Leaves numbers and units as the file has them. Else the model is SI: all that the file states
  /// in other units is converted, each number by the type of its attribute, and the units of the
  /// model say so.
  bool keepUnits = false;
  /// Of a zip archive, no more than so many bytes are unpacked.
  std::uint64_t largestUnpacked = std::uint64_t{4} << 30;
  /// Called from time to time with the part that is done, 0 to 1.
  std::function<void(double)> progress{};
};

struct ReadResult {
  /// The model; null when there was nothing to read, and `failure` says why.
  std::shared_ptr<fc::Data> data{};
  std::string failure{};
  Header header{};
  /// What was left out of the model, or mended, in the order of the lines of the file.
  std::vector<Problem> problems{};
  /// What of a sound file the model has no place for, or holds in another form: of the kinds that
  /// are `isNote`, in the same order.
  std::vector<Problem> notes{};
  std::vector<ReplacedGuid> replacedGuids{};
  /// The entities in the order of the file.
  std::vector<NumberedEntity> instances{};
  /// The units that the file lists, those of the project first, and what makes SI of its numbers.
  std::vector<FileUnit> units{};
};

/// Reads a STEP file (ISO 10303-21) of IFC4X3_ADD2, or of an older IFC schema as far as the classes
/// of the model go, into a new model, with all relationships in step. A zip archive with one model
/// in it (".ifczip") and a file in UTF-16 are unpacked into memory first.
///
/// Whatever the file holds, all that is sound in it is loaded, and the rest is told in `problems`.
/// Two passes over the text: the first makes an entity for each instance, the second reads their
/// attributes, those of units before all others, so that references may point forward. Linear time;
/// beside the model about 36 bytes an instance while it reads.
ReadResult readStepFile(const std::filesystem::path& path, const ReadOptions& options = {});

/// The same from memory.
ReadResult readStep(std::string_view text, const ReadOptions& options = {});

}  // namespace qor::host::step
