// options: asks a printer for its options, through the bidirectional library where it is usable, otherwise by
// SNMP. TELMAR_D.DLL and its siblings are in the program's folder.
#include "telmar_d.h"
#include <stdio.h>
#include <string.h>
#include <wchar.h>

typedef BOOL WINAPI UsableFunction(void);
typedef BOOL WINAPI ReachFunction(const char* agent);
typedef BOOL WINAPI OptionFunction(const char* agent, DWORD count, TelmarOptionRequestItem* items);
typedef void AnyFunction(void); // between FARPROC and the type of an export
#define EXPORT(module, type, name) ((type*)(AnyFunction*)GetProcAddress(module, #name))
enum { kItemCount = 6 };
static TelmarOptionRequestItem items[kItemCount] = {{"OpHDD", ""},         {"OpMemory", ""},
                                                    {"OpDuplex", ""},      {"OpInTrayUnit", ""},
                                                    {"OpOutTrayUnit", ""}, {"OpFAXUnit", ""}};

static int Fail(const char* text) {
    fprintf(stderr, "options: %s\n", text);
    return 1;
}

// Loads it by its full path: a bare name could find another file first. Null when it can't be loaded.
static HMODULE LoadDriver(void) {
    const wchar_t name[] = L"TELMAR_D.DLL";
    wchar_t path[MAX_PATH + sizeof(name) / sizeof(name[0])];
    const DWORD length = GetModuleFileNameW(NULL, path, MAX_PATH);
    if (length == 0 || length == MAX_PATH)
        return NULL;
    memcpy(wcsrchr(path, L'\\') + 1, name, sizeof(name));
    return LoadLibraryW(path);
}

static int Ask(HMODULE module, const char* agent) {
    UsableFunction* isUsable = EXPORT(module, UsableFunction, DDProc_IsEnableBdcLib);
    OptionFunction* byLibrary = EXPORT(module, OptionFunction, DDProc_OptionRequest);
    ReachFunction* isReached = EXPORT(module, ReachFunction, MIB_IsAccessOK);
    OptionFunction* bySnmp = EXPORT(module, OptionFunction, MIB_OptionRequest);
    if (isUsable == NULL || byLibrary == NULL || isReached == NULL || bySnmp == NULL)
        return Fail("TELMAR_D.DLL lacks an export. Replace it by that of the package.");
    const BOOL isByLibrary = isUsable();
    if (isByLibrary && !byLibrary(agent, kItemCount, items))
        return Fail("no answer through the bidirectional library. Check address and model.");
    // By SNMP a query succeeds also when nothing answers, so check that first.
    if (!isByLibrary && (!isReached(agent) || !bySnmp(agent, kItemCount, items)))
        return Fail("no answer by SNMP. Check the address, and that the printer is on.");
    printf("%s, %s\n", agent, isByLibrary ? "bidirectional library" : "SNMP");
    for (int i = 0; i < kItemCount; ++i)
        printf("  %-14s %s\n", items[i].key, items[i].value[0] != 0 ? items[i].value : "(not reported)");
    return 0;
}

int main(int argc, char** argv) {
    const HMODULE module = LoadDriver();
    if (module == NULL)
        return fprintf(stderr, "options: TELMAR_D.DLL can't be loaded (last error %lu)\n", GetLastError()), 1;
    const int result = argc == 2 ? Ask(module, argv[1]) : (fputs("usage: options ADDRESS\n", stderr), 2);
    FreeLibrary(module);
    return result;
}
