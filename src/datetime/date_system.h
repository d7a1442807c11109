// The active date system: the offset added to every serial day number.
#pragma once

namespace kiln::datetime {

double active_offset();

}  // namespace kiln::datetime
