#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "Qor/Platform/Export.h"

namespace qor::fc {

class FcDrawInterface;
class ProductOutcome;

namespace core::kernel {
class FcProduct;
}

/// What became of a product in a walk.
enum class DrawOutcome : std::uint8_t {
  drawn,              ///< the target got something to see
  hidden,             ///< the draw status has it, its class or its type off
  filtered,           ///< the host skipped it, or has no object for it
  noRepresentation,   ///< nothing to be seen in the model
  otherContexts,      ///< has representations, and the walk was asked for none of them
  unknownIdentifier,  ///< the same, and one of them says of itself what no representation is called
  noBody,             ///< its items gave the target nothing to see, and reported nothing
  cutAway,            ///< nothing is left of its items when the openings are cut out
  failed,             ///< the target got nothing to see, and there are reports that say why
};

/// What became of each product that a walk came by: `FcGenerateParams::outcomes` is set to one of
/// these. Openings and what else the walk draws for the sake of others count as products too.
///
/// An entry for each product, a few look-ups for each; none of an item's calls. Belongs to the
/// thread of the walk, but for `addReport`.
class QOR_API DrawOutcomes {
 public:
  using FcProduct = core::kernel::FcProduct;

  struct Entry {
    const FcProduct* product = nullptr;  ///< lives as long as its model
    DrawOutcome outcome = DrawOutcome::noRepresentation;
    std::size_t reports = 0;  ///< that came while it was drawn, whatever the outcome
    std::string firstReport{};
  };

  /// In the order of the walk, each product once.
  const std::vector<Entry>& entries() const { return m_entries; }
  std::size_t count(DrawOutcome outcome) const;

  /// A report of a broken rule, for the product that is being drawn; without one it is passed over.
  /// A host's handler of asserts calls this, from any thread.
  void addReport(const std::string& text);

  /// For the walk: a representation of the product that is being drawn was asked for.
  void setAskedFor();
  /// For the walk: that product isn't drawn, for this reason.
  void leaveOut(DrawOutcome reason);

 private:
  friend class ProductOutcome;

  std::vector<Entry> m_entries;
  std::mutex m_mutex;
  ProductOutcome* m_open = nullptr;
};

/// For the walk: the time in which it is at one product. These nest like a stack.
class QOR_API ProductOutcome {
 public:
  /// `outcomes` may be null: then nothing happens. All outlive this.
  ProductOutcome(DrawOutcomes* outcomes, const core::kernel::FcProduct& product,
                 const FcDrawInterface& target);
  ProductOutcome(const ProductOutcome&) = delete;
  ProductOutcome& operator=(const ProductOutcome&) = delete;
  ~ProductOutcome();

 private:
  friend class DrawOutcomes;
  DrawOutcomes::Entry& entry() const { return m_outcomes->m_entries[m_entry]; }
  DrawOutcome outcome() const;

  DrawOutcomes* m_outcomes;
  const FcDrawInterface& m_target;
  std::size_t m_entry = 0;
  ProductOutcome* m_enclosing = nullptr;
  std::optional<std::uint64_t> m_shownBefore;
  std::uint64_t m_cutAwayBefore = 0;
  bool m_isAskedFor = false;
  std::optional<DrawOutcome> m_leftOut;
};

}  // namespace qor::fc
