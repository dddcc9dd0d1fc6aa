#include "Host/Cli/ContentHash.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

#include "Fc/Core/Kernel/FcRoot.h"
#include "Fc/Reflection/TypeOperations.h"
#include "Fc/Reflection/ValueSink.h"
#include "Fc/Resource/Utility/FcOwnerHistory.h"

namespace qor::host::cli {

using fc::core::kernel::FcRoot;
using fc::resource::utility::FcOwnerHistory;
using Bits = ContentHash::Bits;

namespace {

std::uint64_t mixed(std::uint64_t x) {
  x ^= x >> 32;
  x *= 0xD6E8FEB86659FD93ULL;
  x ^= x >> 32;
  x *= 0xD6E8FEB86659FD93ULL;
  return x ^ (x >> 32);
}

/// Two sums over the same words with different constants.
void add(Bits& bits, std::uint64_t word) {
  bits[0] = mixed(bits[0] ^ word) + 0x9E3779B97F4A7C15ULL;
  bits[1] = mixed(bits[1] + word * 0xFF51AFD7ED558CCDULL) ^ 0xC4CEB9FE1A85EC53ULL;
}

void add(Bits& bits, std::string_view text) {
  add(bits, text.size());
  while (!text.empty()) {
    std::uint64_t word = 0;
    const std::size_t size = std::min(text.size(), sizeof word);
    std::memcpy(&word, text.data(), size);
    add(bits, word);
    text.remove_prefix(size);
  }
}

void add(Bits& bits, const Bits& other) {
  add(bits, other[0]);
  add(bits, other[1]);
}

}  // namespace

/// Takes the values of one attribute.
class ContentHash::Sink final : public fc::ValueSink {
 public:
  Sink(ContentHash& hash, const fc::AttributeInfo& attribute)
      : m_hash(hash), m_attribute(attribute) {}

  Bits result() const { return m_result; }

  void null() override { value('$'); }
  void integer(std::int64_t number) override { value('i', static_cast<std::uint64_t>(number)); }
  void real(double number) override {
    std::uint64_t word = 0;
    if (number != 0) std::memcpy(&word, &number, sizeof word);
    value('r', word);
  }
  void text(std::string_view text) override { textValue('t', text); }
  void enumerator(std::string_view name) override { textValue('e', name); }
  void binary(std::span<const std::uint8_t> bytes) override {
    textValue('b', {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  }
  void entity(const fc::FcBase& entity) override { put(m_hash.of(entity)); }
  void openList() override { m_lists.emplace_back(); }
  void closeList() override {
    std::vector<Bits> elements = std::move(m_lists.back());
    m_lists.pop_back();
    const auto& levels = m_attribute.aggregates;
    if (m_lists.size() < levels.size() &&
        levels[m_lists.size()].kind == fc::AggregateInfo::Kind::set)
      std::sort(elements.begin(), elements.end());
    Bits bits{'(', elements.size()};
    for (const Bits& element : elements) add(bits, element);
    put(bits);
  }
  void openTyped(std::string_view upperName) override { textValue('T', upperName); }
  void closeTyped() override {}

 private:
  void value(char kind, std::uint64_t word = 0) {
    Bits bits{static_cast<std::uint64_t>(kind), 0};
    add(bits, word);
    put(bits);
  }
  void textValue(char kind, std::string_view text) {
    Bits bits{static_cast<std::uint64_t>(kind), 0};
    add(bits, text);
    put(bits);
  }
  void put(const Bits& bits) {
    if (m_lists.empty())
      add(m_result, bits);
    else
      m_lists.back().push_back(bits);
  }

  ContentHash& m_hash;
  const fc::AttributeInfo& m_attribute;
  std::vector<std::vector<Bits>> m_lists;
  Bits m_result{};
};

Bits ContentHash::write(const fc::FcBase& entity, const fc::AttributeInfo& attribute) {
  Sink sink(*this, attribute);
  attribute.type->write(attribute.of(entity), sink);
  return sink.result();
}

Bits ContentHash::of(const fc::FcBase& entity, const fc::AttributeInfo& attribute) {
  attribute.type->forEachEntity(attribute.of(entity), [this](fc::FcBase& target) { of(target); });
  return write(entity, attribute);
}

Bits ContentHash::of(const fc::FcBase& entity) {
  if (const auto known = m_known.find(&entity); known != m_known.end()) return known->second;
  std::vector<const fc::FcBase*> stack{&entity};
  while (!stack.empty()) {
    const fc::FcBase* next = stack.back();
    if (pushUnknown(*next, stack)) continue;
    m_known[next] = contentOf(*next);
    stack.pop_back();
  }
  return m_known.at(&entity);
}

bool ContentHash::pushUnknown(const fc::FcBase& entity, std::vector<const fc::FcBase*>& stack) {
  // While its targets are looked at an entity counts as known, so that a ring of them ends.
  if (!m_known.try_emplace(&entity, Bits{}).second) return false;
  if (fc::fcCast<FcRoot>(&entity)) return false;
  const std::size_t before = stack.size();
  entity.classInfo().forEachAttribute([&](const fc::AttributeInfo& attribute) {
    attribute.type->forEachEntity(attribute.of(entity), [&](fc::FcBase& target) {
      if (!m_known.contains(&target)) stack.push_back(&target);
    });
  });
  return stack.size() > before;
}

Bits ContentHash::contentOf(const fc::FcBase& entity) {
  Bits bits{};
  if (fc::fcCast<FcOwnerHistory>(&entity)) return bits;
  add(bits, entity.classId());
  if (const auto* root = fc::fcCast<FcRoot>(&entity)) {
    add(bits, root->GlobalId().toString(false));
    return bits;
  }
  entity.classInfo().forEachAttribute(
      [&](const fc::AttributeInfo& attribute) { add(bits, write(entity, attribute)); });
  return bits;
}

}  // namespace qor::host::cli
