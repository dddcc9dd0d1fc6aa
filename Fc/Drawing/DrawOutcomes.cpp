#include "Fc/Drawing/DrawOutcomes.h"

#include <algorithm>
#include <utility>

#include "Fc/Core/Kernel/FcProduct.h"
#include "Fc/Drawing/FcDrawInterface.h"
#include "Fc/Resource/Representation/FcProductRepresentation.h"
#include "Fc/Resource/Representation/FcRepresentation.h"

namespace qor::fc {

namespace {

bool hasKnownIdentifier(const resource::representation::FcRepresentation& representation) {
  return representation.representation().identifier.has_value();
}

/// Why nothing that the product has was asked for.
DrawOutcome whyNothingAskedFor(const core::kernel::FcProduct& product) {
  if (!product.Representation()) return DrawOutcome::noRepresentation;
  bool isAny = false;
  for (const auto& representation : product.Representation()->Representations()) {
    if (!representation) continue;
    if (!hasKnownIdentifier(*representation)) return DrawOutcome::unknownIdentifier;
    isAny = true;
  }
  return isAny ? DrawOutcome::otherContexts : DrawOutcome::noRepresentation;
}

}  // namespace

std::size_t DrawOutcomes::count(DrawOutcome outcome) const {
  return static_cast<std::size_t>(
      std::count_if(m_entries.begin(), m_entries.end(),
                    [outcome](const Entry& entry) { return entry.outcome == outcome; }));
}

void DrawOutcomes::addReport(const std::string& text) {
  const std::lock_guard lock(m_mutex);
  if (!m_open) return;
  Entry& entry = m_open->entry();
  if (entry.reports++ == 0) entry.firstReport = text;
}

void DrawOutcomes::setAskedFor() {
  if (m_open) m_open->m_isAskedFor = true;
}

void DrawOutcomes::leaveOut(DrawOutcome reason) {
  if (m_open) m_open->m_leftOut = reason;
}

ProductOutcome::ProductOutcome(DrawOutcomes* outcomes, const core::kernel::FcProduct& product,
                               const FcDrawInterface& target)
    : m_outcomes(outcomes), m_target(target) {
  if (!m_outcomes) return;
  m_shownBefore = target.shownCount();
  m_cutAwayBefore = target.cutAwayCount();
  const std::lock_guard lock(m_outcomes->m_mutex);
  m_entry = m_outcomes->m_entries.size();
  m_outcomes->m_entries.push_back({.product = &product});
  m_enclosing = std::exchange(m_outcomes->m_open, this);
}

ProductOutcome::~ProductOutcome() {
  if (!m_outcomes) return;
  const std::lock_guard lock(m_outcomes->m_mutex);
  m_outcomes->m_open = m_enclosing;
  entry().outcome = outcome();
}

DrawOutcome ProductOutcome::outcome() const {
  if (m_leftOut) return *m_leftOut;
  const auto shown = m_target.shownCount();
  if (shown && shown != m_shownBefore) return DrawOutcome::drawn;
  if (entry().reports > 0) return DrawOutcome::failed;
  if (!m_isAskedFor) return whyNothingAskedFor(*entry().product);
  if (m_target.cutAwayCount() != m_cutAwayBefore) return DrawOutcome::cutAway;
  return shown ? DrawOutcome::noBody : DrawOutcome::drawn;
}

}  // namespace qor::fc
