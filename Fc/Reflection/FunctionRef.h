#pragma once

#include <memory>
#include <type_traits>
#include <utility>

namespace qor::fc {

template <class Signature>
class FunctionRef;

/// A callable that is passed down a call and never kept: two words, no allocation. The callable
/// must outlive the call.
template <class Result, class... Arguments>
class FunctionRef<Result(Arguments...)> {
 public:
  template <class Callable>
  requires(!std::is_same_v<std::remove_cvref_t<Callable>, FunctionRef>)
      FunctionRef(Callable&& callable)  // NOLINT(google-explicit-constructor): a lambda is handed
                                        // over as it stands
      : m_object(const_cast<void*>(static_cast<const void*>(std::addressof(callable)))),
        m_call([](void* object, Arguments... arguments) -> Result {
          return (*static_cast<std::remove_reference_t<Callable>*>(object))(
              std::forward<Arguments>(arguments)...);
        }) {}

  Result operator()(Arguments... arguments) const {
    return m_call(m_object, std::forward<Arguments>(arguments)...);
  }

 private:
  void* m_object;
  Result (*m_call)(void*, Arguments...);
};

}  // namespace qor::fc
