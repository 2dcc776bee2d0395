// color_dialog: opens the model's dialog of colour settings with settings of its own, and prints them before
// and after. Linked with the import library.
#include "telmar_d.h"
#include <stdio.h>

enum { kDialog = 128 }; // colours with lists for text, images and graphics each

// Too large for the stack, and valid until the dialog has ended.
static TelmarOemDevmode settings, saveArea, scratch;

static void Show(const char* when) {
    printf("%-7s images: matching %u, halftone %u; text: matching %u, halftone %u\n", when,
           (unsigned)settings.image.colorMatch, (unsigned)settings.image.halftone,
           (unsigned)settings.text.colorMatch, (unsigned)settings.text.halftone);
}

// Passes each message to the module.
static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    int32_t handled = 0;
    const int32_t result = DDProc_DlgProc(kDialog, window, message, wParam, lParam, &handled);
    if (handled == 0)
        return FALSE;
    SetWindowLongPtrW(window, DWLP_MSGRESULT, result);
    return result;
}

int main(void) {
    // The module has loaded the templates from its folder.
    const HINSTANCE templates = GetModuleHandleW(L"TELMAR_S.DLL");
    TelmarDialogContext context = {&settings, &saveArea, &scratch, NULL, NULL, 1, 0, NULL};
    settings.image.colorMatch = 1;
    settings.image.halftone = 2;
    settings.imageRgbSource = settings.textRgbSource = settings.graphicsRgbSource = 1; // sRGB
    Show("before:");
    const INT_PTR end = templates == NULL ? -1
                                          : DialogBoxParamW(templates, MAKEINTRESOURCEW(kDialog), NULL,
                                                            DialogProcedure, (LPARAM)&context);
    if (end != IDOK && end != IDCANCEL) {
        fprintf(stderr, "color_dialog: the dialog can't be opened from TELMAR_S.DLL (last error %lu)\n",
                GetLastError());
        return 1;
    }
    Show(end == IDOK ? "OK:" : "Cancel:");
    return 0;
}
