#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <span>
#include <string>

#include "Fc/Data.h"
#include "Host/StepFile/Header.h"
#include "Host/StepFile/InstanceTable.h"

namespace qor::host::step {

struct WriteOptions {
  /// Its schemas aren't looked at: what is written is IFC4X3_ADD2. Without a time stamp the current
  /// time is taken.
  Header header{};
  /// The numbers that entities had in the file they came from (`ReadResult::instances`). They keep
  /// them, and the order of these; all others follow, in the order in which the model lists them,
  /// with the numbers behind the largest of these.
  std::span<const NumberedEntity> numbers{};
  /// Called from time to time with the part that is done, 0 to 1.
  std::function<void(double)> progress{};
};

struct WriteResult {
  /// Why nothing was written, as the operating system says it ("No space left on device"); empty on
  /// success.
  std::string failure{};
  std::uint64_t instances = 0;
  /// How many numbers were infinite or none: `$` stands in their places.
  std::uint64_t notFinite = 0;
};

/// Writes all entities of the model, and those that they refer to without being listed, as a STEP
/// file of IFC4X3_ADD2 that takes the place of `target` at once, or not at all.
///
/// Every number reads back as the same bits and every text as the same characters. Linear time;
/// about 40 bytes an entity.
WriteResult writeStepFile(const fc::Data& data, const std::filesystem::path& target,
                          const WriteOptions& options = {});

/// The same to the end of a stream, a piece at a time: what was written before a failure stays.
WriteResult writeStep(const fc::Data& data, std::ostream& out, const WriteOptions& options = {});

/// The same into `out`, which is overwritten.
WriteResult writeStep(const fc::Data& data, std::string& out, const WriteOptions& options = {});

}  // namespace qor::host::step
