// The load configuration of the DLL, which the system reads when it loads the module. It says where the
// checks of control flow guard are: the compiler makes each indirect call a call through a pointer, with the
// target in RAX; the system replaces the pointer by that of its own check. Other programs that link the
// module's code are not guarded.
#include <cstddef>
#include <cstdint>

// The linker sets these: their addresses are what is to be stored.
extern "C" const uint8_t __guard_fids_table, __guard_fids_count, __guard_iat_table, __guard_iat_count;

namespace {

// What is called where the system has no control flow guard: accepts the target, or jumps to it.
void AcceptTarget() {}
__attribute__((naked)) void JumpToTarget() {
    __asm__("jmp *%rax");
}

struct GuardTable {
    const uint8_t* table; // of addresses relative to the image
    const uint8_t* count; // an element for each
};

// The first fields of the Windows SDK's IMAGE_LOAD_CONFIG_DIRECTORY64. Gaps are fields that stay 0.
struct LoadConfiguration {
    uint32_t size;
    uint8_t gap4[108];
    void (*const* checkFunction)();
    void (*const* dispatchFunction)();
    GuardTable functions;
    uint32_t guardFlags;
    uint8_t gap148[12];
    GuardTable importedFunctions;
};
static_assert(offsetof(LoadConfiguration, checkFunction) == 112);
static_assert(offsetof(LoadConfiguration, functions) == 128
              && offsetof(LoadConfiguration, guardFlags) == 144);
static_assert(sizeof(LoadConfiguration) == 176);

constexpr uint32_t kInstrumented = 0x100;     // IMAGE_GUARD_CF_INSTRUMENTED
constexpr uint32_t kHasFunctionTable = 0x400; // IMAGE_GUARD_CF_FUNCTION_TABLE_PRESENT

} // namespace

// The names that the compiler and the linker look for. The pointers are in a section that stays read-only
// while the module runs.
extern "C" {
__attribute__((section(".00cfg"))) extern void (*const __guard_check_icall_fptr)();
__attribute__((section(".00cfg"))) extern void (*const __guard_dispatch_icall_fptr)();
void (*const __guard_check_icall_fptr)() = AcceptTarget;
void (*const __guard_dispatch_icall_fptr)() = JumpToTarget;

extern const LoadConfiguration _load_config_used;
// clang-format off
const LoadConfiguration _load_config_used = {
    sizeof(LoadConfiguration), {}, &__guard_check_icall_fptr, &__guard_dispatch_icall_fptr,
    {&__guard_fids_table, &__guard_fids_count}, kInstrumented | kHasFunctionTable, {},
    {&__guard_iat_table, &__guard_iat_count},
};
// clang-format on
}
