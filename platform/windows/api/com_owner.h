// Owners of the system's COM objects: each releases its object when it goes out of scope.
#pragma once

#include <memory>

namespace platform::windows {

struct ComReleaser {
  template <typename Interface>
  void operator()(Interface* object) const {
    object->Release();
  }
};
template <typename Interface>
using ComOwner = std::unique_ptr<Interface, ComReleaser>;

// Another interface of `object`, or null.
template <typename Interface, typename Object>
ComOwner<Interface> Query(Object* object) {
  void* found = nullptr;
  if (object == nullptr || FAILED(object->QueryInterface(__uuidof(Interface), &found))) {
    return nullptr;
  }
  return ComOwner<Interface>(static_cast<Interface*>(found));
}

// Counts the references of an object of this program that COM holds. The object is made by `new`
// with one reference, and deleted with the last.
class ReferenceCount {
 public:
  ULONG Add() { return static_cast<ULONG>(InterlockedIncrement(&count_)); }

  template <typename Object>
  ULONG Release(Object* object) {
    const LONG left = InterlockedDecrement(&count_);
    if (left == 0) delete object;
    return static_cast<ULONG>(left);
  }

 private:
  LONG count_ = 1;
};

}  // namespace platform::windows
