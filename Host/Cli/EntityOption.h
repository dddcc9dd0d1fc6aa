#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Host/Cli/Console.h"
#include "Host/StepFile/StepReader.h"

namespace qor::host::cli {

/// A guid as a command line gives it, in 22 characters or 32 digits with hyphens. Empty, after a
/// line that says why, for any other text.
std::optional<Guid> guidFromText(const std::string& text, Console& console);

/// The number of an instance as a command line gives it, "12" or "#12". Empty, after a line that
/// says why, for any other text.
std::optional<std::uint64_t> idFromText(const std::string& text, Console& console);

/// The first entity with that guid in the order of the file. Null, after a line that says why, for
/// none.
std::shared_ptr<fc::core::kernel::FcRoot> findRoot(const step::ReadResult& model, const Guid& guid,
                                                   const std::string& file, Console& console);

/// The product whose guid this text is. Null, after a line that says why, for none.
std::shared_ptr<fc::core::kernel::FcProduct> findProduct(const step::ReadResult& model,
                                                         const std::string& guid,
                                                         const std::string& file, Console& console);

/// The entity with that number. Null, after a line that says why, when the file has none or it was
/// left out.
std::shared_ptr<fc::FcBase> findEntity(const step::ReadResult& model, std::uint64_t id,
                                       const std::string& file, Console& console);

}  // namespace qor::host::cli
