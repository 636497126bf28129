// The handful of Windows calls that vessel modules use, for systems that lack
// them. On Windows the real <windows.h> is used instead; elsewhere these are
// implemented by the host library on top of dladdr/dlsym, so that module code
// reads the same on every platform.
#pragma once

#ifdef _WIN32
#include <cstdio>
#include <windows.h>
inline FILE *OpenLocalFile(const char *path, const char *mode) { return fopen(path, mode); }
#else

#include <cstdint>
#include <cstdio>

typedef uint32_t DWORD;
typedef uint16_t WORD;
typedef uint8_t BYTE;
typedef unsigned int UINT;
typedef int BOOL;
typedef const char *LPCSTR;
typedef char *LPSTR;
typedef void *HANDLE;
typedef struct HkModule_ *HMODULE;
typedef HMODULE HINSTANCE;
typedef struct HkBitmap_ *HBITMAP;
typedef struct HkDC_ *HDC;
typedef void (*FARPROC)();

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif

#define GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT 0x00000002
#define GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS 0x00000004

#define IMAGE_BITMAP 0
#define LR_LOADFROMFILE 0x00000010
#define LR_CREATEDIBSECTION 0x00002000

#define KEYEVENTF_EXTENDEDKEY 0x0001
#define KEYEVENTF_KEYUP 0x0002
#define KEYEVENTF_SCANCODE 0x0008

#define MAX_PATH 260

extern "C" {
// With FROM_ADDRESS, `name` is an address inside the module sought.
BOOL GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE *module);
// The module's path, in the host's form: backslashes as separators.
DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size);
// A module already loaded into the process, by file name ("OrbiterSound.dll").
HMODULE GetModuleHandleA(LPCSTR name);
FARPROC GetProcAddress(HMODULE module, LPCSTR name);
// Loads a bitmap file (a path in the host's form) as an image handle.
HANDLE LoadImageA(HINSTANCE instance, LPCSTR name, UINT type, int cx, int cy, UINT flags);
// Queues a key event for the focus vessel, as the keyboard would.
void keybd_event(BYTE vk, BYTE scan, DWORD flags, uintptr_t extra);
}

// Opens a file named by a path in the host's form (backslashes), mapped to the
// local file system.
FILE *OpenLocalFile(const char *path, const char *mode);

#endif
