// The host-access object: the host registers it; two GUI switches are
// forwarded to it instead of being stored here.
#include <kilnutil/frame.h>

namespace {

KilnHostAccess* g_host_access = nullptr;

}  // namespace

extern "C" {

void KILNUTIL_set_vkutil_access_obj(KilnHostAccess* obj) { g_host_access = obj; }

KilnHostAccess* KILNUTIL_get_vkutil_access_obj(void) { return g_host_access; }

int KILNUTIL_enable_vela_gui(int flag) {
  return g_host_access != nullptr ? g_host_access->enable_gui(flag) : 0;
}

int KILNUTIL_is_vela_gui_enabled(void) {
  return g_host_access != nullptr ? g_host_access->is_gui_enabled() : 1;
}

}  // extern "C"
