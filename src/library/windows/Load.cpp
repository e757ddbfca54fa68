// What the loader runs.
#include <windows.h>

#include "library/Defaults.h"
#include "library/EntryPoint.h"

// Called for every process and thread that comes and goes, under the loader's lock.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) ZDXEngine::InstallDefaultProviders();
  return ZDXEngine::OnLoaderNotification(module, reason) ? TRUE : FALSE;
}
