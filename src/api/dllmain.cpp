// The entry point that the Windows loader calls when a process or thread attaches or detaches.
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD /*reason*/, LPVOID /*reserved*/) { return TRUE; }
