// The folder for what a user keeps from one computer to the next.
#pragma once

namespace ZDXEngine {

// Worked out at the first call, which makes the folders below the user's roaming one; beside the
// executable where that can't be had.  Never null; valid until the process ends.
const wchar_t* RoamingRootFolder();

}  // namespace ZDXEngine
