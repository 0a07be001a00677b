#include "helpers/busy_pointer.h"

#include "platform/windows/api/windows_api.h"

namespace helpers {

void EndBusyPointer() {
  MSG message;
  PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
}

}  // namespace helpers
