#include <cstring>
#include <memory>
#include <utility>

#include "Fc/Reflection/SelectBase.h"

// The life of a select's value, all that is done without knowing its type: it stands in `m_place`,
// or on the heap behind a pointer that stands there, and `AlternativeOperations` say how one of
// that type is made, copied, moved and destroyed. Operations that are missing are those of plain
// bytes.
namespace qor::fc {

namespace {

struct FreeMemory {
  void operator()(void* memory) const { ::operator delete(memory); }
};

}  // namespace

void* SelectBase::heap() const {
  void* pointer;
  std::memcpy(&pointer, m_place, sizeof pointer);
  return pointer;
}

void SelectBase::reset(const SelectInfo& info) {
  if (m_position == npos) return;
  if (at(info).destroy) at(info).destroy(value(info));
  if (!at(info).inPlace) ::operator delete(heap());
  m_position = npos;
}

// Gives an empty select the value that `fill` makes in the place it is handed. The select stays
// empty when that throws.
template <class Fill>
void SelectBase::build(const SelectInfo& info, std::uint32_t position, Fill&& fill) {
  const AlternativeOperations& operations = *info.alternatives[position].operations;
  if (operations.inPlace) {
    fill(operations, m_place);
  } else {
    std::unique_ptr<void, FreeMemory> memory(::operator new(operations.size));
    fill(operations, memory.get());
    void* pointer = memory.release();
    std::memcpy(m_place, &pointer, sizeof pointer);
  }
  m_position = position;
}

void* SelectBase::make(const SelectInfo& info, std::uint32_t position) {
  reset(info);
  if (position == npos) return nullptr;
  build(info, position,
        [](const AlternativeOperations& operations, void* place) { operations.construct(place); });
  return value(info);
}

void SelectBase::copyFrom(const SelectInfo& info, const SelectBase& other) {
  if (other.m_position == npos) return;
  build(info, other.m_position, [&](const AlternativeOperations& operations, void* place) {
    if (operations.copy)
      operations.copy(place, other.value(info));
    else
      std::memcpy(place, other.value(info), operations.size);
  });
}

void SelectBase::moveFrom(const SelectInfo& info, SelectBase& other) {
  reset(info);
  if (other.m_position == npos) return;
  m_position = other.m_position;
  if (at(info).inPlace && at(info).move) {
    at(info).move(m_place, other.m_place);
    other.reset(info);
  } else {
    // The bytes of a plain value, or the pointer to what stands on the heap.
    std::memcpy(m_place, other.m_place, sizeof m_place);
    other.m_position = npos;
  }
}

}  // namespace qor::fc
