// The system as the host sees it, without a header or a library of anybody.
#pragma once

using uint8 = unsigned char;
using uint32 = unsigned;
using int64 = long long;
#ifdef _WIN64
using size = unsigned long long;
#else
using size = unsigned;
#endif
using Code = int;

extern "C" {
__declspec(dllimport) void* __stdcall GetProcessHeap();
__declspec(dllimport) void* __stdcall HeapAlloc(void* heap, unsigned long flags, size bytes);
__declspec(dllimport) int __stdcall HeapFree(void* heap, unsigned long flags, void* block);
__declspec(dllimport) void* __stdcall LoadLibraryW(const wchar_t* name);
__declspec(dllimport) void* __stdcall GetProcAddress(void* library, const char* name);
__declspec(dllimport) int __stdcall FreeLibrary(void* library);
__declspec(dllimport) wchar_t* __stdcall GetCommandLineW();
__declspec(dllimport) void* __stdcall GetStdHandle(unsigned long which);
__declspec(dllimport) int __stdcall WriteFile(void* file, const void* bytes, unsigned long count,
                                              unsigned long* written, void* overlapped);
[[noreturn]] __declspec(dllimport) void __stdcall ExitProcess(unsigned status);
__declspec(dllimport) void __stdcall RaiseException(unsigned long code, unsigned long flags,
                                                    unsigned long count, const size* arguments);

// The compiler calls it by itself, too.
void* memcpy(void* to, const void* from, size count);
}
