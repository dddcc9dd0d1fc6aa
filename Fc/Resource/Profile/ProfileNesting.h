#pragma once

namespace qor::fc::resource::profile {

class FcProfileDef;

/// While it lives, a profile that is made of others is being worked on. Profiles that contain
/// themselves, or are nested deeper than any sense, are found here before the stack runs out. One
/// chain for each thread.
class ProfileNesting {
 public:
  explicit ProfileNesting(const FcProfileDef& profile);
  ProfileNesting(const ProfileNesting&) = delete;
  ProfileNesting& operator=(const ProfileNesting&) = delete;
  ~ProfileNesting();

  /// False, after an assert, when the profile is worked on already or too many others are: leave
  /// it.
  explicit operator bool() const { return m_isSound; }

 private:
  const FcProfileDef* m_profile;
  const ProfileNesting* m_outer;
  int m_depth;
  bool m_isSound;
};

}  // namespace qor::fc::resource::profile
