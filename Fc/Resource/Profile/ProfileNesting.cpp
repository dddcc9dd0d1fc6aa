#include "Fc/Resource/Profile/ProfileNesting.h"

#include "Fc/Model/Report.h"

namespace qor::fc::resource::profile {

namespace {

constexpr int kDeepest = 500;

thread_local const ProfileNesting* innermost = nullptr;

}  // namespace

ProfileNesting::ProfileNesting(const FcProfileDef& profile)
    : m_profile(&profile), m_outer(innermost), m_depth(m_outer ? m_outer->m_depth + 1 : 1) {
  m_isSound = m_depth <= kDeepest;
  for (const ProfileNesting* outer = m_outer; outer && m_isSound; outer = outer->m_outer)
    m_isSound = outer->m_profile != m_profile;
  if (!m_isSound) report("Circular dependency in profile");
  innermost = this;
}

ProfileNesting::~ProfileNesting() { innermost = m_outer; }

}  // namespace qor::fc::resource::profile
