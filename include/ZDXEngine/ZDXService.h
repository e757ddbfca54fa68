// Starting and stopping the engine inside the client's process.
//
// The operations stand in the order in which a client calls them, from one thread, never while a
// property or reference operation runs.  None of them throws on its own account or reports
// anything: what the drawing library answers is dropped.  ValidateHostApplication,
// InitHostApplication and UnInitializeHostApplication need host services to be installed.
#pragma once

#include <string>

#include "ZDXEngine/Export.h"

namespace ZDXEngine {

// What the client tells the drawing library about itself.
struct HostApplicationParam {
  // Handed back to the drawing library when it asks who its host is.
  std::wstring hostIdentityPrimary;
  std::wstring hostIdentitySecondary;
  // False: every search for a file that isn't a drawing fails at once.
  bool enableSupportFileSearch = false;
  // Folders, separated as the system's search path is; empty for no second search.
  std::wstring supportSearchPath;
};

namespace ZDXService {

// Installs the host services object with the defaults above.
ZDXENGINE_API void SetupHostApplication();
// Installs the host services object with a copy of `param`.  Does nothing if the process has host
// services already, this engine's or another's: use UpdateHostAppParam then.
ZDXENGINE_API void SetupHostApplication(const HostApplicationParam& param);
// Replaces the parameters of the installed object.  Does nothing before SetupHostApplication.
ZDXENGINE_API void UpdateHostAppParam(const HostApplicationParam& param);
// Runs the drawing library's own check of its setup, for the locale identifier `locale`.
ZDXENGINE_API void ValidateHostApplication(long locale);
// Loads the object modules and makes the database that works while the engine is idle.  A second
// call does nothing.
ZDXENGINE_API void InitHostApplication();
// Starts the dependency-walking library.
ZDXENGINE_API void InitializeEConvyEngine();
// Stops the dependency-walking library.
ZDXENGINE_API void UnInitializeEConveyEngine();
// Cleans up after InitHostApplication, which may run again afterwards.  The host services object
// stays installed until the process ends.
ZDXENGINE_API void UnInitializeHostApplication();

}  // namespace ZDXService
}  // namespace ZDXEngine
