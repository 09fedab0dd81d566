// The entry routine that the Windows loader calls on process and thread attach and detach.
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD /*reason*/, LPVOID /*reserved*/) { return TRUE; }
