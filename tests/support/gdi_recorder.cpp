// Replaces the module's imports of drawing services and records the calls.
#include "support/gdi_recorder.h"

#include <gtest/gtest.h>

namespace {

GdiRecorder* recording;

bool Fails(const char* function, DWORD type = 0) {
    if (!recording->failing.empty() && recording->failing != function)
        return false;
    if (++recording->calls != recording->failingCall && recording->failingCall != GdiRecorder::kEvery)
        return false;
    recording->hasFailed = true;
    recording->loadsBefore = recording->ids.size();
    recording->failedType = type;
    return true;
}

template <typename Handle>
Handle NoteMade(Handle handle) {
    if (handle != nullptr)
        recording->live.insert(handle);
    return handle;
}

HDC WINAPI MakeContext(HDC like) {
    return Fails("CreateCompatibleDC") ? nullptr : NoteMade(CreateCompatibleDC(like));
}

HBITMAP WINAPI MakeBitmap(HDC like, int width, int height) {
    return Fails("CreateCompatibleBitmap") ? nullptr : NoteMade(CreateCompatibleBitmap(like, width, height));
}

HFONT WINAPI MakeFont(const LOGFONTW* description) {
    return Fails("CreateFontIndirectW", OBJ_FONT) ? nullptr : NoteMade(CreateFontIndirectW(description));
}

HANDLE WINAPI LoadBitmapImage(HINSTANCE module, const wchar_t* name, UINT type, int width, int height, UINT flags) {
    const UINT id = static_cast<UINT>(reinterpret_cast<uintptr_t>(name));
    recording->ids.push_back(id);
    if (Fails("LoadImageW"))
        return nullptr;
    const auto served = recording->served.find(id);
    return NoteMade(served != recording->served.end() ? CopyImage(served->second, type, 0, 0, LR_CREATEDIBSECTION)
                                                      : LoadImageW(module, name, type, width, height, flags));
}

int WINAPI ReadObject(HANDLE object, int size, void* description) {
    return Fails("GetObjectW", GetObjectType(object)) ? 0 : GetObjectW(object, size, description);
}

// Only objects that the module has made can fail to be selected; the former object can always be restored.
HGDIOBJ WINAPI Select(HDC context, HGDIOBJ object) {
    const DWORD type = GetObjectType(object);
    if (recording->live.count(object) != 0 && Fails("SelectObject", type))
        return nullptr;
    const HGDIOBJ before = SelectObject(context, object);
    if (before != nullptr)
        recording->selected[context][type] = object;
    return before;
}

BOOL WINAPI DeleteNoted(HGDIOBJ object) {
    if (recording->live.erase(object) == 0)
        recording->errors += "deletes what it does not own; ";
    for (const auto& context : recording->selected)
        for (const auto& of : context.second)
            if (of.second == object)
                recording->errors += "deletes what is still selected; ";
    return DeleteObject(object);
}

BOOL WINAPI DeleteContext(HDC context) {
    if (recording->live.erase(context) == 0)
        recording->errors += "deletes a context that it does not own; ";
    for (const auto& of : recording->selected[context])
        if (recording->live.count(of.second) != 0)
            recording->errors += "deletes a context with its object still selected; ";
    recording->selected.erase(context);
    return DeleteDC(context);
}

BOOL WINAPI Copy(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY, DWORD operation) {
    ++recording->copies[to];
    return BitBlt(to, x, y, width, height, from, fromX, fromY, operation);
}

int WINAPI ReadCapability(HDC context, int index) {
    return GetDeviceCaps(context, index) * (context == recording->fineContext && index == LOGPIXELSY ? 2 : 1);
}

// The slot of the module's import table with this function; null when the module does not import it.
void** ImportSlot(HMODULE module, void* function) {
    char* const base = reinterpret_cast<char*>(module);
    const auto* head = reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const auto& place = head->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + place.VirtualAddress);
    for (; library->FirstThunk != 0; ++library)
        for (auto* slot = reinterpret_cast<void**>(base + library->FirstThunk); *slot != nullptr; ++slot)
            if (*slot == function)
                return slot;
    return nullptr;
}

void Replace(void** slot, void* function) {
    DWORD protection;
    if (slot != nullptr && VirtualProtect(slot, sizeof(*slot), PAGE_READWRITE, &protection))
        *slot = function;
}

} // namespace

PatchedImport::PatchedImport(HMODULE module, void* system, void* other)
    : slot(ImportSlot(module, system)), before(system) {
    EXPECT_NE(slot, nullptr);
    Replace(slot, other);
}

PatchedImport::~PatchedImport() {
    Replace(slot, before);
}

GdiRecorder::GdiRecorder(HMODULE module)
    : patches{{module, CreateCompatibleDC, MakeContext},
              {module, CreateCompatibleBitmap, MakeBitmap},
              {module, CreateFontIndirectW, MakeFont},
              {module, LoadImageW, LoadBitmapImage},
              {module, GetObjectW, ReadObject},
              {module, SelectObject, Select},
              {module, DeleteObject, DeleteNoted},
              {module, DeleteDC, DeleteContext},
              {module, BitBlt, Copy},
              {module, GetDeviceCaps, ReadCapability}} {
    recording = this;
}

GdiRecorder::~GdiRecorder() {
    EXPECT_EQ(Errors(), "");
}

void GdiRecorder::Fail(const char* function, size_t nth) {
    failing = function;
    failingCall = nth;
    hasFailed = false;
    calls = 0;
    ids.clear();
    copies.clear();
}

std::string GdiRecorder::Errors() const {
    return errors + (live.empty() ? "" : std::to_string(live.size()) + " objects left behind");
}
