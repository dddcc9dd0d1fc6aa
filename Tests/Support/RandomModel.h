#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include "Fc/FcBase.h"

namespace qor::test {

/// Entities of many classes with random values and random references among themselves, cycles
/// included; the same for the same seed. Texts, numbers and lists are short and repeat often, so
/// that equal parts occur.
std::vector<std::shared_ptr<fc::FcBase>> randomEntities(std::size_t count, std::uint32_t seed);

/// Takes all values out of an entity, so that it goes with its last owner outside of a cycle.
void empty(fc::FcBase& entity);

}  // namespace qor::test
