// The host-access object: the host registers it; two GUI switches are
// forwarded to it instead of being stored here.
#include "frame/relaxed.h"

#include <kilnutil/frame.h>

namespace {

kiln::frame::Relaxed<KilnHostAccess*> g_host_access{nullptr};

}  // namespace

extern "C" {

void KILNUTIL_set_vkutil_access_obj(KilnHostAccess* obj) { g_host_access.store(obj); }

KilnHostAccess* KILNUTIL_get_vkutil_access_obj(void) { return g_host_access.load(); }

int KILNUTIL_enable_vela_gui(int flag) {
  KilnHostAccess* host = g_host_access.load();
  return host != nullptr ? host->enable_gui(flag) : 0;
}

int KILNUTIL_is_vela_gui_enabled(void) {
  KilnHostAccess* host = g_host_access.load();
  return host != nullptr ? host->is_gui_enabled() : 1;
}

}  // extern "C"
