// Which system the library runs on, where the tests must tell a stand-in
// apart from the real one: the Windows build is tested under Wine, whose
// services lack a few of Windows' (the GB18030 code page, for one).
#pragma once

namespace kiln::platform {

// Whether the Windows build runs under Wine rather than Windows; false on POSIX.
bool runs_under_wine();

}  // namespace kiln::platform
