// telmar_d.h: the public interface of TELMAR_D.DLL, the device-dependent procedure module of the QUORVANE
// lumora R880. It declares the module's 26 exports, the records that they exchange with their callers, the
// functions of TELMAR_U.DLL that the module's dialogs call, and the two messages that go with the dialogs. It
// needs no other header of the project: C11, C++11 and later, for Windows x86-64.
//
// The comment of an export says what it does, then has a line for each argument, then result, last error,
// thread, time (at worst) and cost where they differ from those of its section or from these, which hold for
// every export:
// - Result: FALSE, 0 or null means no, or failure.
// - Last error: not defined.
// - Thread: any, and several at once. The work is done when the call returns.
// - Time: the call waits for nothing outside the process.
// - Cost: no request, block of memory, library or graphics object.
// - Memory: what the caller passes stays the caller's and is not kept beyond the call. Constant tables that
//   an export returns belong to the module and are valid as long as it is loaded.
// - Texts: those of type char are 8-bit, those of type wchar_t UTF-16. Both end with a NUL.
//
// A key names a feature, an item or a tray, such as "OpHDD" or "InTray1". Keys are compared without regard to
// ASCII case. A list of records ends at the first record whose key is empty.
#ifndef TELMAR_D_H
#define TELMAR_D_H

#include <stddef.h>
#include <stdint.h>
#include <windows.h>

// --- Layout of the records
//
// Every record has a fixed layout without padding, checked when this header is compiled. A record is a table,
// NAME(R, FIELD, GAP), with a row for each field: R is the record's type, then the offset in bytes, the type,
// the name and the dimensions. A gap, from one offset to another, belongs to other modules or is unused: this
// module neither reads nor changes it. To list the fields of a record, expand its table with macros of your
// own.

#ifdef __cplusplus
#define TELMAR_CHECK(condition, text) static_assert(condition, text);
#else
#define TELMAR_CHECK(condition, text) _Static_assert(condition, text);
#endif
#define TELMAR_FIELD(R, offset, type, name, dimensions) type name dimensions;
#define TELMAR_GAP(R, from, to)                         uint8_t gap##from[(to) - (from)];
#define TELMAR_CHECK_FIELD(R, offset, type, name, dimensions)                                                \
    TELMAR_CHECK(offsetof(R, name) == (offset), #R "." #name " does not lie at offset " #offset)
#define TELMAR_CHECK_GAP(R, from, to)
#define TELMAR_RECORD(R, size, TABLE)                                                                        \
    typedef struct R {                                                                                       \
        TABLE(R, TELMAR_FIELD, TELMAR_GAP)                                                                   \
    } R;                                                                                                     \
    TABLE(R, TELMAR_CHECK_FIELD, TELMAR_CHECK_GAP)                                                           \
    TELMAR_CHECK(sizeof(R) == (size), #R " is not of " #size " bytes")

// Elements of the arrays in records.
#define TELMAR_SWITCH_COUNT         85
#define TELMAR_TRAY_SELECTION_COUNT 7
#define TELMAR_TRAY_COUNT           10
#define TELMAR_FONT_COUNT           27
#define TELMAR_FONT_CODE_COUNT      24
#define TELMAR_STOP_ICON_COUNT      120
#define TELMAR_OVERLAY_SELECTORS    2
#define TELMAR_PROFILE_SELECTORS    3

// clang-format off
#pragma pack(push, 1)

// --- The device table: the model as TELMAR_D.PRM describes it
//
// The module builds it at load; the user-interface module builds and passes records of the same layout.

// The start of every record of a list.
#define TELMAR_ITEM_HEAD(R, FIELD, GAP) \
    FIELD(R,  0, uint32_t, size,)     /* of the whole record, in bytes */ \
    FIELD(R,  4, char,     key,      [32]) \
    FIELD(R, 36, uint32_t, value,)    /* the number stored in the settings when the item is chosen */ \
    FIELD(R, 40, uint32_t, iconFlag,) /* not 0: a dialog draws the entry with its icon */ \
    FIELD(R, 44, uint16_t, icon,) \
    GAP(R, 46, 48)
TELMAR_RECORD(TelmarItemHead, 48, TELMAR_ITEM_HEAD)

// One selectable item of a setting.
#define TELMAR_ITEM_RECORD(R, FIELD, GAP) \
    FIELD(R,  0, TelmarItemHead, head,) \
    FIELD(R, 48, wchar_t,        display, [48])
TELMAR_RECORD(TelmarItemRecord, 144, TELMAR_ITEM_RECORD)

// Output trays, output methods, locations, transparency interleave, paper arrangement.
#define TELMAR_TEXT_ITEM_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, TelmarItemHead, head,) \
    FIELD(R,  48, wchar_t,        display, [48]) \
    FIELD(R, 144, char,           text,    [128])
TELMAR_RECORD(TelmarTextItemRecord, 272, TELMAR_TEXT_ITEM_RECORD)

// Media attributes and most finishing features.
#define TELMAR_COMPACT_ITEM_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, TelmarItemHead, head,) \
    FIELD(R,  48, wchar_t,        display, [32]) \
    FIELD(R, 112, char,           text,    [128])
TELMAR_RECORD(TelmarCompactItemRecord, 240, TELMAR_COMPACT_ITEM_RECORD)

// Hole punch and staples.
#define TELMAR_FINISHING_ITEM_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, TelmarItemHead, head,) \
    FIELD(R,  48, wchar_t,        display, [32]) \
    FIELD(R, 112, char,           text,    [128]) \
    GAP(R, 240, 288)
TELMAR_RECORD(TelmarFinishingItemRecord, 288, TELMAR_FINISHING_ITEM_RECORD)

// One paper source; the value is its bin number. An input tray that the model lacks has an empty key.
#define TELMAR_INPUT_SLOT_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, TelmarItemHead, head,) \
    FIELD(R,  48, wchar_t,        display, [32]) \
    FIELD(R, 112, char,           text,    [128]) \
    GAP(R, 240, 256)
TELMAR_RECORD(TelmarInputSlotRecord, 256, TELMAR_INPUT_SLOT_RECORD)

// One tray of the list view in the tray-setting dialogs.
#define TELMAR_TRAY_ROW_RECORD(R, FIELD, GAP) \
    FIELD(R,  0, TelmarItemHead, head,) \
    FIELD(R, 48, wchar_t,        display, [32])
TELMAR_RECORD(TelmarTrayRowRecord, 112, TELMAR_TRAY_ROW_RECORD)

// The value is the position in the list.
#define TELMAR_RESOLUTION_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, TelmarItemHead, head,) \
    FIELD(R,  48, wchar_t,        display, [32]) \
    FIELD(R, 112, uint16_t,       values,  [3]) \
    FIELD(R, 118, uint16_t,       number,) /* from the key's sixth character on */
TELMAR_RECORD(TelmarResolutionRecord, 120, TELMAR_RESOLUTION_RECORD)

// The values are not interpreted; they are copied from the parameter file.
#define TELMAR_TAB_PAPER_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, TelmarItemHead, head,) \
    FIELD(R,  48, wchar_t,        display, [48]) \
    FIELD(R, 144, uint32_t,       values,  [3])
TELMAR_RECORD(TelmarTabPaperRecord, 156, TELMAR_TAB_PAPER_RECORD)

// The extra value is not interpreted; it is copied from the parameter file.
#define TELMAR_COLLATE_RECORD(R, FIELD, GAP) \
    FIELD(R,  0, TelmarItemHead, head,) \
    FIELD(R, 48, uint32_t,       extra,) \
    FIELD(R, 52, char,           texts, [2][64])
TELMAR_RECORD(TelmarCollateRecord, 180, TELMAR_COLLATE_RECORD)

// The values are not interpreted; they are copied from the parameter file.
#define TELMAR_OUTPUT_PAPER_SIZE_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, TelmarItemHead, head,) \
    FIELD(R,  48, wchar_t,        display,            [48]) \
    FIELD(R, 144, wchar_t,        displayAgain,       [48]) \
    FIELD(R, 240, wchar_t,        secondDisplay,      [48]) \
    FIELD(R, 336, wchar_t,        secondDisplayAgain, [48]) \
    FIELD(R, 432, uint32_t,       values,             [2])
TELMAR_RECORD(TelmarOutputPaperSizeRecord, 440, TELMAR_OUTPUT_PAPER_SIZE_RECORD)

// Lengths are tenths of a millimetre: A4 is 2100 by 2970. Geometry sets and values are not interpreted; they are copied
// from the parameter file. A geometry set, and the margins, are 0 where their flag is 0.
#define TELMAR_PAPER_SIZE_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, TelmarItemHead, head,) \
    FIELD(R,  48, wchar_t,        display,            [48]) \
    FIELD(R, 144, wchar_t,        displayAgain,       [48]) \
    FIELD(R, 240, wchar_t,        secondDisplay,      [48]) \
    FIELD(R, 336, wchar_t,        secondDisplayAgain, [48]) \
    FIELD(R, 432, char,           text,               [128]) \
    FIELD(R, 560, uint32_t,       width,) \
    FIELD(R, 564, uint32_t,       length,) \
    FIELD(R, 568, uint32_t,       hasGeometry1,) \
    FIELD(R, 572, uint8_t,        geometry1,          [72]) \
    FIELD(R, 644, uint32_t,       hasGeometry2,) \
    FIELD(R, 648, uint32_t,       geometry2,          [2]) \
    FIELD(R, 656, uint32_t,       margins,            [4]) \
    FIELD(R, 672, uint8_t,        geometry4,          [120]) \
    FIELD(R, 792, uint32_t,       geometry5,          [4]) \
    FIELD(R, 808, uint32_t,       hasMargins,) \
    FIELD(R, 812, uint32_t,       hasGeometry4,) \
    FIELD(R, 816, uint32_t,       hasGeometry5,) \
    FIELD(R, 820, uint32_t,       values,             [2]) \
    FIELD(R, 828, uint32_t,       complete,) /* 1: shortName, longValues and longText are all present */ \
    FIELD(R, 832, char,           shortName,          [32]) \
    FIELD(R, 864, uint32_t,       longValues,         [3]) \
    FIELD(R, 876, char,           longText,           [128])
TELMAR_RECORD(TelmarPaperSizeRecord, 1004, TELMAR_PAPER_SIZE_RECORD)

// The texts are not interpreted; they are copied from the parameter file.
#define TELMAR_MACHINE_DETAIL_RECORD(R, FIELD, GAP) \
    FIELD(R, 0, char, texts, [2][16])
TELMAR_RECORD(TelmarMachineDetailRecord, 32, TELMAR_MACHINE_DETAIL_RECORD)

// One machine of the machine information. The details are a block of their own.
#define TELMAR_MACHINE_INFO_RECORD(R, FIELD, GAP) \
    FIELD(R,  0, char,                       name,        [16]) \
    FIELD(R, 16, uint32_t,                   detailCount,) /* with the terminating record */ \
    FIELD(R, 20, TelmarMachineDetailRecord*, details,)
TELMAR_RECORD(TelmarMachineInfoRecord, 28, TELMAR_MACHINE_INFO_RECORD)

// Callers pass it to DDProc_DeviceCapabilities, which reads `inputTrays` alone; the order of the switches is the module's
// own. The selections are those of front cover, back cover, separator page, interleave, front and back of inserted sheets,
// and of the per-page list. What the file lacks is 0, a list that it lacks is null. Of a range the file gives two values; B
// is the first, A the second. Which is the upper bound is up to the file.
#define TELMAR_DEVICE_TABLE(R, FIELD, GAP) \
    FIELD(R,   0, uint32_t,                     switches,           [TELMAR_SWITCH_COUNT]) /* 1 on, 0 off, or the number of a variant */ \
    FIELD(R, 340, uint16_t,                     copiesA,) \
    FIELD(R, 342, uint16_t,                     copiesB,) \
    FIELD(R, 344, uint16_t,                     paperWidthB,)            /* tenths of a millimetre; B comes first here */ \
    FIELD(R, 346, uint16_t,                     paperWidthA,) \
    FIELD(R, 348, uint16_t,                     paperLengthB,) \
    FIELD(R, 350, uint16_t,                     paperLengthA,) \
    FIELD(R, 352, uint32_t,                     printRatePpm,)           /* pages per minute */ \
    FIELD(R, 356, uint32_t,                     printRate,)              /* in printRateUnit */ \
    FIELD(R, 360, uint8_t,                      printRateUnit,)          /* 2 CPS, 3 LPM, 4 IPM, 1 other, 0 none */ \
    FIELD(R, 361, uint32_t,                     stapler,) \
    FIELD(R, 365, uint32_t,                     colorDevice,) \
    FIELD(R, 369, uint16_t,                     pdlTypeA,) \
    FIELD(R, 371, uint16_t,                     pdlTypeB,) \
    FIELD(R, 373, uint8_t,                      machineEncryption,)      /* 1 AES, 2 other, 0 none */ \
    FIELD(R, 374, uint32_t,                     machineInfoCount,)       /* with the terminating record */ \
    FIELD(R, 378, TelmarMachineInfoRecord*,     machineInfo,) \
    FIELD(R, 386, uint32_t,                     figureType,)             /* 1: multifunction printer */ \
    FIELD(R, 390, TelmarPaperSizeRecord*,       paperSizes,) \
    FIELD(R, 398, uint32_t,                     userPaperSize,      [4]) /* width, further 1, length, further 2 */ \
    FIELD(R, 414, uint32_t,                     userPaperMargins,   [4]) \
    FIELD(R, 430, uint8_t,                      userPaperGeometry4, [120]) \
    FIELD(R, 550, uint32_t,                     userPaperGeometry5, [4]) \
    FIELD(R, 566, TelmarOutputPaperSizeRecord*, outputPaperSizes,) \
    FIELD(R, 574, TelmarCompactItemRecord*,     mediaTypes,) \
    FIELD(R, 582, TelmarInputSlotRecord*,       inputTrays,) \
    FIELD(R, 590, TelmarTextItemRecord*,        outputTrays,) \
    FIELD(R, 598, TelmarCompactItemRecord*,     mediaWeights,) \
    FIELD(R, 606, TelmarCompactItemRecord*,     mediaColors,) \
    FIELD(R, 614, TelmarResolutionRecord*,      resolutions,) \
    GAP(R, 622, 626) \
    FIELD(R, 626, uint32_t,                     country,) \
    FIELD(R, 630, uint32_t,                     excelJobCtrl,)           /* spreadsheet job control */ \
    FIELD(R, 634, TelmarCompactItemRecord*,     combinations,) \
    FIELD(R, 642, TelmarCompactItemRecord*,     foldings,) \
    FIELD(R, 650, TelmarFinishingItemRecord*,   holePunches,) \
    FIELD(R, 658, TelmarCompactItemRecord*,     outputOrders,) \
    FIELD(R, 666, TelmarCompactItemRecord*,     perPagePrintTypes,) \
    FIELD(R, 674, TelmarCompactItemRecord*,     prePunchedMedia,) \
    FIELD(R, 682, TelmarFinishingItemRecord*,   staples,) \
    FIELD(R, 690, TelmarCompactItemRecord*,     perPageStaples,) \
    FIELD(R, 698, TelmarTextItemRecord*,        outputMethods,) \
    FIELD(R, 706, TelmarTextItemRecord*,        overlayLocations,) \
    FIELD(R, 714, TelmarTextItemRecord*,        profileLocations,) \
    FIELD(R, 722, TelmarItemRecord*,            traySelections,     [TELMAR_TRAY_SELECTION_COUNT]) /* by feature that selects a tray */ \
    FIELD(R, 778, TelmarTabPaperRecord*,        tabPaperSizes,) \
    FIELD(R, 786, TelmarCollateRecord*,         collates,) \
    FIELD(R, 794, TelmarTextItemRecord*,        interleaves,) \
    FIELD(R, 802, TelmarTextItemRecord*,        paperArrangements,) \
    FIELD(R, 810, TelmarTrayRowRecord*,         trayRows,)
TELMAR_RECORD(TelmarDeviceTable, 818, TELMAR_DEVICE_TABLE)

// --- The private print settings
//
// A stored record, which the user-interface module owns and the dialogs edit in place. Values are those of the items of
// the device table's lists, except where a comment says otherwise.

// A colour profile that the printer stores, or a chosen one.
#define TELMAR_PROFILE_ENTRY(R, FIELD, GAP) \
    FIELD(R,   0, wchar_t,  qualifier, [41]) /* may be empty; of a built-in RGB source: its display name */ \
    FIELD(R,  82, wchar_t,  name,      [41]) \
    FIELD(R, 164, uint32_t, location,)       /* value of a "Prof_Location" item */
TELMAR_RECORD(TelmarProfileEntry, 168, TELMAR_PROFILE_ENTRY)

// The paper that a tray is assumed to hold.
#define TELMAR_TRAY_PAPER_DEFAULT(R, FIELD, GAP) \
    FIELD(R,  0, char,     key,             [32]) \
    FIELD(R, 32, uint32_t, bin,) \
    FIELD(R, 36, uint16_t, mediaType,) \
    FIELD(R, 38, uint16_t, mediaWeight,) \
    FIELD(R, 40, uint16_t, mediaColor,) \
    FIELD(R, 42, uint8_t,  mediaPrePunched,)
TELMAR_RECORD(TelmarTrayPaperDefault, 43, TELMAR_TRAY_PAPER_DEFAULT)

// How the colours of one kind of object are treated.
#define TELMAR_OBJECT_COLOR(R, FIELD, GAP) \
    FIELD(R, 0, uint8_t, colorMatch,) \
    FIELD(R, 1, uint8_t, halftone,) \
    FIELD(R, 2, uint8_t, gray,) \
    GAP(R, 3, 4)
TELMAR_RECORD(TelmarObjectColor, 4, TELMAR_OBJECT_COLOR)

// Metric lengths are tenths of a millimetre. Each row has one more column, after the offset: the group of settings that
// the field belongs to.
#define TELMAR_OEM_DEVMODE(R, FIELD, GAP) \
    GAP(R,    0, 66) \
    FIELD(R,   66, paper,     uint16_t,               paper,)           /* item value */ \
    FIELD(R,   68, paper,     int16_t,                paperWidth,)      /* tenths of a millimetre */ \
    FIELD(R,   70, paper,     int16_t,                paperLength,) \
    FIELD(R,   72, paper,     uint16_t,               paperMargins,               [4]) \
    GAP(R,   80, 81) \
    FIELD(R,   81, paper,     int16_t,                userPaperWidth,) \
    FIELD(R,   83, paper,     int16_t,                userPaperLength,) \
    GAP(R,   85, 88) \
    FIELD(R,   88, paper,     int32_t,                userPaperWidthInches,) /* 1/100 inch, 1/1000 for figure type 1 */ \
    FIELD(R,   92, paper,     int32_t,                userPaperLengthInches,) \
    FIELD(R,   96, paper,     uint16_t,               outputPaper,) \
    FIELD(R,   98, paper,     int16_t,                outputWidth,) \
    FIELD(R,  100, paper,     int16_t,                outputLength,) \
    GAP(R,  102, 103) \
    FIELD(R,  103, paper,     int16_t,                userOutputWidth,) \
    FIELD(R,  105, paper,     int16_t,                userOutputLength,) \
    GAP(R,  107, 108) \
    FIELD(R,  108, paper,     int32_t,                userOutputWidthInches,) \
    FIELD(R,  112, paper,     int32_t,                userOutputLengthInches,) \
    FIELD(R,  116, paper,     uint8_t,                unitFlags,                  [4]) /* 1: inches */ \
    FIELD(R,  120, media,     uint16_t,               inputTray,)       /* bin number */ \
    FIELD(R,  122, media,     uint16_t,               mediaType,) \
    GAP(R,  124, 160) \
    FIELD(R,  160, media,     uint16_t,               detailMediaType,) /* the same, for the media details */ \
    FIELD(R,  162, media,     uint16_t,               mediaWeight,) \
    FIELD(R,  164, media,     uint16_t,               mediaColor,) \
    FIELD(R,  166, media,     uint8_t,                mediaPrePunched,) \
    FIELD(R,  167, trays,     TelmarTrayPaperDefault, trays,                      [TELMAR_TRAY_COUNT]) \
    GAP(R,  597, 598) \
    FIELD(R,  598, layout,    int16_t,                copies,) \
    FIELD(R,  600, finishing, uint8_t,                collate,) \
    GAP(R,  601, 744) \
    FIELD(R,  744, paper,     uint8_t,                paperOption1,) \
    FIELD(R,  745, paper,     uint8_t,                paperOption2,) \
    GAP(R,  746, 1395) \
    FIELD(R, 1395, layout,    uint8_t,                bindingEdge,)     /* 10, 11 if 4 edges can be bound; else 14 to 17 */ \
    FIELD(R, 1396, layout,    uint8_t,                sameBindShifts,)  /* 1: both binding shifts are equal */ \
    GAP(R, 1397, 1398) \
    FIELD(R, 1398, layout,    int16_t,                bindShiftFront,) \
    FIELD(R, 1400, layout,    int16_t,                bindShiftBack,) \
    FIELD(R, 1402, layout,    int16_t,                bindShiftFrontInches,) /* thousandths of an inch */ \
    FIELD(R, 1404, layout,    int16_t,                bindShiftBackInches,) \
    GAP(R, 1406, 1412) \
    FIELD(R, 1412, layout,    int16_t,                imageShiftFrontH,) \
    FIELD(R, 1414, layout,    int16_t,                imageShiftFrontV,) \
    GAP(R, 1416, 1420) \
    FIELD(R, 1420, layout,    int16_t,                imageShiftFrontHInches,) /* thousandths of an inch */ \
    FIELD(R, 1422, layout,    int16_t,                imageShiftFrontVInches,) \
    GAP(R, 1424, 1430) \
    FIELD(R, 1430, layout,    int16_t,                imageShiftBackH,) \
    FIELD(R, 1432, layout,    int16_t,                imageShiftBackV,) \
    GAP(R, 1434, 1438) \
    FIELD(R, 1438, layout,    int16_t,                imageShiftBackHInches,) \
    FIELD(R, 1440, layout,    int16_t,                imageShiftBackVInches,) \
    GAP(R, 1442, 1457) \
    FIELD(R, 1457, finishing, uint8_t,                staple,) \
    GAP(R, 1458, 1459) \
    FIELD(R, 1459, finishing, uint8_t,                holePunch,) \
    FIELD(R, 1460, finishing, uint16_t,               outputTray,) \
    FIELD(R, 1462, finishing, uint8_t,                outputOrder,) \
    GAP(R, 1463, 1466) \
    FIELD(R, 1466, finishing, uint8_t,                folding,) \
    GAP(R, 1467, 1470) \
    FIELD(R, 1470, layout,    uint8_t,                combination,) \
    GAP(R, 1471, 1472) \
    FIELD(R, 1472, finishing, int16_t,                divideFinish,) \
    GAP(R, 1474, 1478) \
    FIELD(R, 1478, covers,    uint8_t,                frontCoverPrint,) /* 1: by the driver, else 4 */ \
    GAP(R, 1479, 1480) \
    FIELD(R, 1480, covers,    uint16_t,               frontCoverTray,)  /* bin number, as all trays */ \
    GAP(R, 1482, 1483) \
    FIELD(R, 1483, covers,    uint8_t,                backCoverPrint,) \
    FIELD(R, 1484, covers,    uint16_t,               backCoverTray,) \
    GAP(R, 1486, 1488) \
    FIELD(R, 1488, covers,    uint16_t,               interleaveTray,) \
    GAP(R, 1490, 1491) \
    FIELD(R, 1491, covers,    uint16_t,               inserterFrontTray,) \
    GAP(R, 1493, 1494) \
    FIELD(R, 1494, covers,    uint16_t,               inserterBackTray,) \
    GAP(R, 1496, 1500) \
    FIELD(R, 1500, watermark, uint16_t,               watermark,)       /* position in the list */ \
    GAP(R, 1502, 1534) \
    FIELD(R, 1534, watermark, wchar_t,                watermarkName,              [32]) \
    FIELD(R, 1598, watermark, wchar_t,                watermarkText,              [129]) \
    FIELD(R, 1856, watermark, wchar_t,                watermarkFont,              [32]) \
    FIELD(R, 1920, watermark, uint16_t,               watermarkValues1,           [2]) \
    FIELD(R, 1924, watermark, uint32_t,               watermarkColor,)  /* 0x00BBGGRR */ \
    FIELD(R, 1928, watermark, uint16_t,               watermarkValue2,) \
    FIELD(R, 1930, watermark, uint8_t,                watermarkBlock,             [8]) \
    GAP(R, 1938, 1946) \
    FIELD(R, 1946, watermark, uint16_t,               watermarkValue3,) \
    GAP(R, 1948, 2088) \
    FIELD(R, 2088, layout,    uint32_t,               overlayLocation,) \
    GAP(R, 2092, 2094) \
    FIELD(R, 2094, color,     uint8_t,                mono,)            /* 1: the queue prints black only */ \
    FIELD(R, 2095, color,     uint8_t,                colorMode,) \
    GAP(R, 2096, 2136) \
    FIELD(R, 2136, color,     uint8_t,                resolution,)      /* position in the list */ \
    GAP(R, 2137, 2138) \
    FIELD(R, 2138, color,     uint16_t,               resolutionValues,           [3]) \
    FIELD(R, 2144, color,     uint16_t,               resolutionNumber,) \
    GAP(R, 2146, 2153) \
    FIELD(R, 2153, color,     TelmarObjectColor,      image,) \
    FIELD(R, 2157, color,     TelmarObjectColor,      text,) \
    FIELD(R, 2161, color,     TelmarObjectColor,      graphics,) \
    FIELD(R, 2165, color,     uint8_t,                graphicsFollow,)  /* graphics are treated as 0 text, 1 images */ \
    FIELD(R, 2166, color,     uint16_t,               simulation,)      /* or 128: simulationProfile */ \
    FIELD(R, 2168, profiles,  TelmarProfileEntry,     simulationProfile,) \
    FIELD(R, 2336, color,     uint16_t,               destination,)     /* 0 automatic, 128: destinationProfile */ \
    FIELD(R, 2338, profiles,  TelmarProfileEntry,     destinationProfile,) \
    GAP(R, 2506, 2508) \
    FIELD(R, 2508, color,     uint32_t,               profileLocation,) \
    FIELD(R, 2512, color,     uint16_t,               rgbSource,) \
    FIELD(R, 2514, color,     int16_t,                imageRgbSource,)  /* or 256 + position of a printer profile */ \
    FIELD(R, 2516, color,     int16_t,                textRgbSource,) \
    FIELD(R, 2518, color,     int16_t,                graphicsRgbSource,) \
    FIELD(R, 2520, profiles,  TelmarProfileEntry,     textRgbProfile,) \
    FIELD(R, 2688, profiles,  TelmarProfileEntry,     imageRgbProfile,) \
    FIELD(R, 2856, profiles,  TelmarProfileEntry,     graphicsRgbProfile,) \
    FIELD(R, 3024, color,     uint16_t,               textDestination,) /* 0 automatic, 128: the profile below */ \
    FIELD(R, 3026, color,     uint16_t,               imageDestination,) \
    FIELD(R, 3028, color,     uint16_t,               graphicsDestination,) \
    FIELD(R, 3030, profiles,  TelmarProfileEntry,     textDestinationProfile,) \
    FIELD(R, 3198, profiles,  TelmarProfileEntry,     imageDestinationProfile,) \
    FIELD(R, 3366, profiles,  TelmarProfileEntry,     graphicsDestinationProfile,) \
    FIELD(R, 3534, color,     uint8_t,                matchPaperColor,) \
    GAP(R, 3535, 3536) \
    FIELD(R, 3536, color,     uint16_t,               simulationGray,) \
    GAP(R, 3538, 3541) \
    FIELD(R, 3541, fonts,     uint8_t,                fontSubstitution,) \
    FIELD(R, 3542, fontTable, char,                   trueTypeNames,              [TELMAR_FONT_COUNT][32]) \
    FIELD(R, 4406, fontTable, uint8_t,                fontCodes,                  [TELMAR_FONT_CODE_COUNT]) /* of the first fonts */ \
    FIELD(R, 4430, fonts,     uint16_t,               fontField,) \
    FIELD(R, 4432, fonts,     uint8_t,                fontFlag,) \
    FIELD(R, 4433, fontTable, char,                   printerFonts,               [TELMAR_FONT_COUNT][32]) \
    GAP(R, 5297, 5298) \
    FIELD(R, 5298, fonts,     uint16_t,               fontCount,) \
    FIELD(R, 5300, fontTable, uint32_t,               fontChecksums,              [TELMAR_FONT_COUNT]) \
    GAP(R, 5408, 7699) \
    FIELD(R, 7699, paper,     int16_t,                userPaperWidthAgain,) \
    FIELD(R, 7701, paper,     int16_t,                userPaperLengthAgain,) \
    GAP(R, 7703, 7808)
#define TELMAR_SETTING(R, offset, group, type, name, dimensions) TELMAR_FIELD(R, offset, type, name, dimensions)
#define TELMAR_CHECK_SETTING(R, offset, group, type, name, dimensions) TELMAR_CHECK_FIELD(R, offset, type, name, dimensions)
typedef struct TelmarOemDevmode { TELMAR_OEM_DEVMODE(TelmarOemDevmode, TELMAR_SETTING, TELMAR_GAP) } TelmarOemDevmode;
TELMAR_OEM_DEVMODE(TelmarOemDevmode, TELMAR_CHECK_SETTING, TELMAR_CHECK_GAP)
TELMAR_CHECK(sizeof(TelmarOemDevmode) == 7808, "TelmarOemDevmode is not of 7808 bytes")

// --- The caller's features, capabilities and picture of the printer

// One feature of the caller's feature table, such as an option of the printer. `feature` holds its key; the items end at
// the first empty key. The table ends at the first empty key.
#define TELMAR_FEATURE_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, TelmarItemRecord,        feature,) \
    FIELD(R, 144, const TelmarItemRecord*, items,)
TELMAR_RECORD(TelmarFeatureRecord, 152, TELMAR_FEATURE_RECORD)

// One of the caller's choices. An array has one for each feature of the table, by position: the position of the
// selected item.
typedef int32_t TelmarFeatureSettings;

// What DrawPrinterView is to show. Flags are set when they are not 0. The picture shows the options "OpBody",
// "OpInTrayUnit", "OpOutTrayUnit", "OpHDD", "OpMailBinKit" and "OpSaddleKit", and names the item of "OpMachine" when there
// are several.
#define TELMAR_PRINTER_VIEW_REQUEST(R, FIELD, GAP) \
    FIELD(R,  0, uint8_t,                      showsPaperPath,)      /* 0: the machine alone */ \
    FIELD(R,  1, const TelmarFeatureRecord*,   features,)            /* may be null: nothing installed */ \
    FIELD(R,  9, const TelmarFeatureSettings*, settings,)            /* may be null: nothing chosen */ \
    FIELD(R, 17, char,                         inputSlotKey,   [40]) /* the paper source in use, such as "InTray1" */ \
    FIELD(R, 57, uint32_t,                     outputFlags,    [9])  /* in use: 0 to 4 output trays, 5 to 8 bins 1 to 4 of the mail bin kit */
TELMAR_RECORD(TelmarPrinterViewRequest, 93, TELMAR_PRINTER_VIEW_REQUEST)

// --- The dialogs

// The paper in one tray, as the tray-setting dialogs edit it. Values are those of the media type lists, -1 is "unknown".
#define TELMAR_TRAY_PAPER_SETTING(R, FIELD, GAP) \
    FIELD(R,  0, char,     key,         [32]) /* of the paper source; key and bin are set with the list of trays */ \
    FIELD(R, 32, uint32_t, bin,) \
    FIELD(R, 36, int16_t,  size,) \
    FIELD(R, 38, int16_t,  orientation,)      /* 1 portrait, 2 landscape */ \
    FIELD(R, 40, int16_t,  type,) \
    FIELD(R, 42, int16_t,  weight,) \
    FIELD(R, 44, int16_t,  color,) \
    FIELD(R, 46, int8_t,   hole,) \
    GAP(R, 47, 48)
TELMAR_RECORD(TelmarTrayPaperSetting, 48, TELMAR_TRAY_PAPER_SETTING)

// Colour profiles of one kind.
#define TELMAR_PROFILE_LIST(R, FIELD, GAP) \
    FIELD(R, 0, const TelmarProfileEntry*, entries,) /* may be null when there are none */ \
    FIELD(R, 8, uint32_t,                  count,)
TELMAR_RECORD(TelmarProfileList, 12, TELMAR_PROFILE_LIST)

#define TELMAR_PROFILE_LISTS(R, FIELD, GAP) \
    FIELD(R,  0, TelmarProfileList, rgbSources,) \
    FIELD(R, 12, TelmarProfileList, simulations,) \
    FIELD(R, 24, TelmarProfileList, destinations,)
TELMAR_RECORD(TelmarProfileLists, 36, TELMAR_PROFILE_LISTS)

// What the user-interface module passes to each dialog as the parameter of WM_INITDIALOG. It and all that it points to
// stay the caller's, and stay valid until the dialog has ended.
#define TELMAR_DIALOG_CONTEXT(R, FIELD, GAP) \
    FIELD(R,  0, TelmarOemDevmode*,         settings,)       /* edited in place */ \
    FIELD(R,  8, TelmarOemDevmode*,         saveArea,)       /* what Cancel restores: the settings after the first check by DoConstraints */ \
    FIELD(R, 16, TelmarOemDevmode*,         scratch,)        /* for the button "Defaults"; null: it does nothing */ \
    FIELD(R, 24, const TelmarProfileLists*, profiles,)       /* of the printer; may be null */ \
    FIELD(R, 32, HANDLE,                    printer,)        /* of the spooler, for "Defaults"; may be null */ \
    FIELD(R, 40, uint32_t,                  changesAllowed,) /* 0: the user may look but not change */ \
    FIELD(R, 44, uint32_t,                  shortRgbLists,)  /* not 0: only the RGB sources device RGB and sRGB */ \
    FIELD(R, 48, TelmarTrayPaperSetting*,   trays,)          /* TELMAR_TRAY_COUNT records, for the tray-setting dialogs alone */
TELMAR_RECORD(TelmarDialogContext, 56, TELMAR_DIALOG_CONTEXT)

// The text of one control.
#define TELMAR_CONTROL_TEXT_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, int32_t, identifiers, [5])  /* templates of a dialog; or a control and 0s; or -1, a list column */ \
    FIELD(R,  20, wchar_t, display,     [48]) /* empty until the file fills it */ \
    FIELD(R, 116, char,    key,         [32])
TELMAR_RECORD(TelmarControlTextRecord, 148, TELMAR_CONTROL_TEXT_RECORD)

// The icon control that shows a stop sign next to a control whose choice is refused.
#define TELMAR_STOP_ICON_RECORD(R, FIELD, GAP) \
    FIELD(R, 0, uint32_t, iconControl,) \
    FIELD(R, 4, uint16_t, control,) \
    GAP(R, 6, 8232)
TELMAR_RECORD(TelmarStopIconRecord, 8232, TELMAR_STOP_ICON_RECORD)

// The records that are in use come first; the first icon control 0 ends them.
#define TELMAR_STOP_ICON_TABLE(R, FIELD, GAP) \
    FIELD(R,      0, uint8_t,              header,  [16]) \
    FIELD(R,     16, TelmarStopIconRecord, records, [TELMAR_STOP_ICON_COUNT]) \
    GAP(R, 987856, 990032)
TELMAR_RECORD(TelmarStopIconTable, 990032, TELMAR_STOP_ICON_TABLE)

// --- Queries of the printer

// When an object of the printer matches the expected text. With any other value of `comparison` it never does.
#define TELMAR_COMPARE_EXISTS 0
#define TELMAR_COMPARE_NUMBER 1
#define TELMAR_COMPARE_TEXT   2
#define TELMAR_COMPARE_OID    3

// How a supply is evaluated.
#define TELMAR_SUPPLY_NONE       0
#define TELMAR_SUPPLY_PERCENTAGE 1
#define TELMAR_SUPPLY_LEVEL      2
#define TELMAR_SUPPLY_FIXED      3
#define TELMAR_SUPPLY_END        999 // the closing record of the list

// The state of a supply says how to read its value. Only a percentage has a colour.
#define TELMAR_STATE_UNKNOWN 0 // value 0
#define TELMAR_STATE_PERCENT 1 // value in % of its capacity, 0 to 100
#define TELMAR_STATE_LEVEL   2 // value one of the levels below
#define TELMAR_STATE_FIXED   3 // not asked of printers: value 0

// Values in state TELMAR_STATE_LEVEL.
#define TELMAR_LEVEL_UNKNOWN      0
#define TELMAR_LEVEL_EMPTY        1
#define TELMAR_LEVEL_NEARLY_EMPTY 2
#define TELMAR_LEVEL_NEARLY_FULL  3
#define TELMAR_LEVEL_FULL         4
#define TELMAR_LEVEL_IN_ORDER     5

// How the model is recognized.
#define TELMAR_MODEL_CHECK_INFO(R, FIELD, GAP) \
    FIELD(R,   0, int32_t, enabled,) /* 0: every device passes for this model */ \
    FIELD(R,   4, char,    oid,        [256]) \
    FIELD(R, 260, int32_t, comparison,) \
    FIELD(R, 264, char,    expected,   [256])
TELMAR_RECORD(TelmarModelCheckInfo, 520, TELMAR_MODEL_CHECK_INFO)

// One item of an option and the object by which it is recognized.
#define TELMAR_OPTION_VALUE_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, char,    name,       [32])  /* the answer */ \
    FIELD(R,  32, char,    oid,        [256]) /* empty: the answer, without a request */ \
    FIELD(R, 288, char,    suffix,     [32]) \
    FIELD(R, 320, int32_t, comparison,) \
    FIELD(R, 324, char,    expected,   [256])
TELMAR_RECORD(TelmarOptionValueRecord, 580, TELMAR_OPTION_VALUE_RECORD)

#define TELMAR_OPTION_RECORD(R, FIELD, GAP) \
    FIELD(R,  0, char,                           key,        [32]) \
    FIELD(R, 32, int32_t,                        valueCount,) \
    FIELD(R, 36, int32_t,                        padding,) \
    FIELD(R, 40, const TelmarOptionValueRecord*, values,)
TELMAR_RECORD(TelmarOptionRecord, 48, TELMAR_OPTION_RECORD)

#define TELMAR_OPTION_REQ_INFO(R, FIELD, GAP) \
    FIELD(R, 0, int32_t,                   count,) \
    FIELD(R, 4, int32_t,                   padding,) \
    FIELD(R, 8, const TelmarOptionRecord*, options,)
TELMAR_RECORD(TelmarOptionReqInfo, 16, TELMAR_OPTION_REQ_INFO)

// One supply.
#define TELMAR_MRK_SUP_ITEM(R, FIELD, GAP) \
    FIELD(R,  0, char,     name,       [32]) \
    FIELD(R, 32, int32_t,  kind,) \
    FIELD(R, 36, int32_t,  callerFlag,) /* not read by the module */ \
    FIELD(R, 40, int32_t,  levelFlag,)  /* not 0: it fills up (TELMAR_SUPPLY_LEVEL) */ \
    FIELD(R, 44, char,     suffix,     [32]) \
    FIELD(R, 76, uint32_t, color,)      /* COLORREF, 0x00BBGGRR */
TELMAR_RECORD(TelmarMrkSupItem, 80, TELMAR_MRK_SUP_ITEM)

#define TELMAR_MRK_SUP_REQ_INFO(R, FIELD, GAP) \
    FIELD(R,   0, char,                    capacityOid, [256]) \
    FIELD(R, 256, char,                    levelOid,    [256]) \
    FIELD(R, 512, int32_t,                 count,) /* including the closing record */ \
    FIELD(R, 516, int32_t,                 padding,) \
    FIELD(R, 520, const TelmarMrkSupItem*, items,)
TELMAR_RECORD(TelmarMrkSupReqInfo, 528, TELMAR_MRK_SUP_REQ_INFO)

// A storage of the printer, by the number that its objects hold.
#define TELMAR_STORAGE_NAME_RECORD(R, FIELD, GAP) \
    FIELD(R,  0, char,    name, [32]) \
    FIELD(R, 32, int32_t, code,)
TELMAR_RECORD(TelmarStorageNameRecord, 36, TELMAR_STORAGE_NAME_RECORD)

// The objects of one list: those whose selector object holds one of the values. The object is requested again for each
// value until one matches.
#define TELMAR_SELECTOR_RECORD(R, FIELD, GAP) \
    FIELD(R,   0, char,           oid,        [256]) \
    FIELD(R, 256, int32_t,        valueCount,) \
    FIELD(R, 260, int32_t,        padding,) \
    FIELD(R, 264, const int32_t*, values,)
TELMAR_RECORD(TelmarSelectorRecord, 272, TELMAR_SELECTOR_RECORD)

// What printers store: overlays, with two selectors to choose from, and colour profiles, with a selector for each list.
// An overlay's entry gets the text at `secondOid` as its first, that at `firstOid` as its second text, and always the
// default storage. A profile's entry gets them in order, and the storage whose code is at `storageCodeOid`.
#define TELMAR_OVERLAY_REQ_INFO(R, FIELD, GAP) \
    TELMAR_STORED_RESOURCES(R, FIELD) \
    FIELD(R, 816, TelmarSelectorRecord, selectors, [TELMAR_OVERLAY_SELECTORS])
#define TELMAR_PROFILE_REQ_INFO(R, FIELD, GAP) \
    TELMAR_STORED_RESOURCES(R, FIELD) \
    FIELD(R, 816, TelmarSelectorRecord, selectors, [TELMAR_PROFILE_SELECTORS])
#define TELMAR_STORED_RESOURCES(R, FIELD) \
    FIELD(R,   0, char,                           firstOid,       [256]) \
    FIELD(R, 256, char,                           secondOid,      [256]) \
    FIELD(R, 512, char,                           storageCodeOid, [256]) \
    FIELD(R, 768, int32_t,                        storageCount,) \
    FIELD(R, 772, int32_t,                        padding,) \
    FIELD(R, 776, const TelmarStorageNameRecord*, storages,) \
    FIELD(R, 784, char,                           defaultStorage, [32])
TELMAR_RECORD(TelmarOverlayReqInfo, 1360, TELMAR_OVERLAY_REQ_INFO)
TELMAR_RECORD(TelmarProfileReqInfo, 1632, TELMAR_PROFILE_REQ_INFO)

// A question about one option, and the answer.
#define TELMAR_OPTION_REQUEST_ITEM(R, FIELD, GAP) \
    FIELD(R,  0, char, key,   [32]) \
    FIELD(R, 32, char, value, [32]) /* empty: no answer */
TELMAR_RECORD(TelmarOptionRequestItem, 64, TELMAR_OPTION_REQUEST_ITEM)

// A question about one supply, and the answer.
#define TELMAR_MRK_SUP_REQUEST_ITEM(R, FIELD, GAP) \
    FIELD(R,  0, char,     name,  [32]) \
    FIELD(R, 32, int32_t,  state,) /* TELMAR_STATE_..., which says what the value is */ \
    FIELD(R, 36, int32_t,  value,) /* % or TELMAR_LEVEL_... */ \
    FIELD(R, 40, uint32_t, color,) /* COLORREF, 0x00BBGGRR; 0 unless a percentage */
TELMAR_RECORD(TelmarMrkSupRequestItem, 44, TELMAR_MRK_SUP_REQUEST_ITEM)

// One stored overlay or colour profile. Which object each text is from, see the records of the requests above.
#define TELMAR_STORED_RESOURCE_ENTRY(R, FIELD, GAP) \
    FIELD(R,   0, char, first,   [128]) \
    FIELD(R, 128, char, second,  [128]) \
    FIELD(R, 256, char, storage, [32])
TELMAR_RECORD(TelmarStoredResourceEntry, 288, TELMAR_STORED_RESOURCE_ENTRY)

// A list of a result block. Its entries lie in the same block.
#define TELMAR_STORED_RESOURCE_LIST(R, FIELD, GAP) \
    FIELD(R, 0, int32_t,                    count,) \
    FIELD(R, 4, int32_t,                    padding,) \
    FIELD(R, 8, TelmarStoredResourceEntry*, entries,)
TELMAR_RECORD(TelmarStoredResourceList, 16, TELMAR_STORED_RESOURCE_LIST)

#define TELMAR_OVERLAY_INFO(R, FIELD, GAP) \
    FIELD(R, 0, TelmarStoredResourceList, list,)
TELMAR_RECORD(TelmarOverlayInfo, 16, TELMAR_OVERLAY_INFO)

// RGB sources, simulations and destinations.
#define TELMAR_PROFILE_INFO(R, FIELD, GAP) \
    FIELD(R, 0, TelmarStoredResourceList, lists, [TELMAR_PROFILE_SELECTORS])
TELMAR_RECORD(TelmarProfileInfo, 48, TELMAR_PROFILE_INFO)

// A question about one input tray, and the answer.
#define TELMAR_INPUT_TRAY_STATUS_ITEM(R, FIELD, GAP) \
    FIELD(R,   0, char,    tray,        [32]) /* such as "InTray1" */ \
    FIELD(R,  32, char,    mediaSize,   [32]) \
    FIELD(R,  64, char,    orientation, [32]) \
    FIELD(R,  96, char,    mediaType,   [32]) \
    FIELD(R, 128, char,    weight,      [32]) \
    FIELD(R, 160, char,    color,       [32]) \
    FIELD(R, 192, char,    hole,        [32]) \
    FIELD(R, 224, int32_t, level,)            /* as the device reports it, 0 to 65535 */
TELMAR_RECORD(TelmarInputTrayStatusItem, 228, TELMAR_INPUT_TRAY_STATUS_ITEM)

// The part of the caller's settings that DDProc_GetPrinterIPAddress reads. The rest belongs to the user-interface module.
#define TELMAR_ADDRESS_SETTINGS(R, FIELD, GAP) \
    GAP(R,   0, 562) \
    FIELD(R, 562, uint8_t, hasAddress,)     /* not 0: `address` is valid, and the queue is not asked */ \
    GAP(R, 563, 564) \
    FIELD(R, 564, wchar_t, address,    [1]) /* as long as it needs to be */
TELMAR_RECORD(TelmarAddressSettings, 566, TELMAR_ADDRESS_SETTINGS)

#pragma pack(pop)
// clang-format on

#ifdef __cplusplus
extern "C" {
#endif

// --- Exports: picture and capabilities

// Draws the picture of the printer and its installed units, on white. It is composed off-screen and copied to
// the target; without memory for that it is drawn on the target itself. A null rectangle or request draws
// nothing.
// - target: the context to draw into. Its resolution sets the size of the caption.
// - rectangle: in logical units of the target. Left and top must be 0: the picture goes to the target's
//   origin and is cropped by a rectangle elsewhere.
// - request: the options, the paper source and the outputs to show.
// - Thread: any that may draw into the target.
// - Cost: one bitmap as large as the rectangle, a memory context and at most one font. Up to ten bitmaps of
//   the module are loaded and drawn one after the other. All are released.
void WINAPI DrawPrinterView(HDC target, const RECT* rectangle, const TelmarPrinterViewRequest* request);

// Draws the logo above control 1074 of a property page, right edges aligned. Does nothing unless the module
// has both logo and mask; as delivered it has neither.
// - context: it has the page's client coordinates.
// - page: a dialog.
// - reserved: not read.
// - pageKind: 6 first moves control 1301 of the page above control 1007; any other moves nothing.
// - Thread: the page's.
// - Cost: two bitmaps and a memory context, which are released.
void WINAPI DrawLogoImage(HDC context, HWND page, const void* reserved, WORD pageKind);

// Draws the logo of the version page: through its mask when the module has one, otherwise as it is.
// - context: the context to draw into.
// - reserved: not read.
// - x, y: the centre, in logical units.
// - Thread: any that may draw into the context.
// - Cost: two bitmaps and a memory context, which are released.
void WINAPI DrawLogoVersionTab(HDC context, const void* reserved, LONG x, LONG y);

// Characters of a bin name, UTF-16, with its NUL. The rest is 0.
#define TELMAR_BIN_NAME_LENGTH 24

// Answers DC_BINS, DC_BINNAMES, DC_DUPLEX and DC_STAPLE of the system's DeviceCapabilities. A paper source is
// listed unless there is an option feature "Op" with its key whose selected item does not begin with
// "EnaOpInTray". Duplex is always 1. Staples are 1 when the selected item of "OpOutTrayUnit" is another than
// "DisOpOutTrayUnit".
// - device: its input trays are the paper sources; null: there are none.
// - features, settings: the options and their selected items. Without features all paper sources are listed;
//   without settings no item is selected.
// - reserved: not read.
// - capability: one of the four above.
// - output: gets an element for each usable paper source, a WORD for DC_BINS, TELMAR_BIN_NAME_LENGTH
//   characters for DC_BINNAMES; null asks for the count alone. It must have room: ask for the count first.
// - answer: gets the count, or 1 for yes and 0 for no; may be null.
// - Result: TRUE; FALSE for any other capability, with nothing written.
BOOL WINAPI DDProc_DeviceCapabilities(const TelmarDeviceTable* device, const TelmarFeatureRecord* features,
                                      const void* reserved, const TelmarFeatureSettings* settings,
                                      WORD capability, void* output, DWORD* answer);

// Two names of one function, for a table that this model does not have.
// - Result: null, whatever is passed.
void* WINAPI DDProc_FeatureNameItemTable(void);
void* WINAPI DDProc_FeatureNameValuePtr(void);

// --- Exports: dialogs

// The property page with the tray-settings button, and the button.
#define TELMAR_TRAY_BUTTON_PAGE 156
#define TELMAR_TRAY_BUTTON      1847

// Send it to dialog 122, 124 or 128, which list the printer's profiles, when the settings or the profiles
// have changed. The dialog shows them again. No parameters.
#define TELMAR_WM_REFRESH (WM_USER + 100)

// The page with the tray-settings button sends it to its parent after the tray dialog has ended by OK; wParam
// is the page.
#define TELMAR_WM_TRAYS_CHANGED (WM_USER + 104)

// Handles one message of the model's dialogs. A colour dialog gets its TelmarDialogContext as the parameter
// of WM_INITDIALOG and keeps the pointer in DWLP_USER of its window. For page 156 the caller has put it
// there; without it the button does nothing.
// - dialogId: 122 to 125 and 128 (colours), or 156 (the page with the tray-settings button). For any other
//   nothing is done.
// - window: the dialog, or the page.
// - message, wParam, lParam: as received by the dialog procedure.
// - handled: set to 1 when a colour dialog has handled the message, otherwise unchanged, so clear it before
//   the call. Page 156 never sets it. It may be null; the entries of lists are then not drawn.
// - Result: that of the dialog procedure for this message; 0 when it is not handled.
// - Thread: the dialog's. One dialog may be open at a time: the module keeps the state of the open one.
// - Time: the button of page 156 returns after the user has closed the tray dialog. Help returns when WinHelp
//   does. The button for the defaults waits for the spooler.
// - Cost: WM_INITDIALOG of a colour dialog loads TELMAR_U.DLL, WM_DESTROY frees it. Each press of the button
//   of page 156 loads it, and the dialog that it opens once more; both leave it loaded. A drawn entry of a
//   list makes a brush and releases it.
int32_t WINAPI DDProc_DlgProc(uint32_t dialogId, HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                              int32_t* handled);

// --- Exports: the tables of the queries

// The tables that the queries by SNMP follow. Constant.
// - Result: the table; never null.
const TelmarModelCheckInfo* WINAPI MIB_ModelCheckInfo(void);
const TelmarOptionReqInfo* WINAPI MIB_OptionReqInfo(void);
const TelmarMrkSupReqInfo* WINAPI MIB_MrkSupReqInfo(void);
const TelmarOverlayReqInfo* WINAPI MIB_OvlReqInfo(void);
const TelmarProfileReqInfo* WINAPI MIB_CMProfReqInfo(void);
const TelmarMrkSupItem* WINAPI GET_MrkSupItemList(void);

// --- Exports: queries by SNMP
//
// Each query opens a session of its own, a socket and a block of memory, and closes it. It requests one
// object after the other and blocks its thread until each has been answered or given up. Without SNMP
// functions, of the system or built in, it fails with the last error unchanged.
//
// Printers are asked on UDP port 161 by SNMPv1 with the community "tovask"; none of these can be set.
//
// The time for one object: the built-in client sends a request up to five times and polls the socket 10,000
// times after each, without regard to the clock; an answer that comes after its polls counts as none. If
// replies to earlier requests arrive first, it waits up to 8 s more (four times 2 s), and after five of them
// gives the object up. The system's SNMP libraries, which are used where they are installed, take up to 8 s
// for an object (2 s and three retries).
// - agent: a dotted IPv4 address or a host name, in the system's ANSI code page. Not null.
// - Last error: 87 (ERROR_INVALID_PARAMETER) for a null argument, the reason when no session can be opened,
//   otherwise unchanged.
// - Time: resolving the host name, and at most the time above for each object.
// - Cost: a session. For each object a request and a few blocks of memory, which are released.

// Checks whether the agent answers at all. It is the cheapest query.
// - agent: a dotted IPv4 address or a host name, in the system's ANSI code page. Neither null nor empty.
// - Result: TRUE when any answer has come.
// - Last error: 87 for a null or empty agent; what the session or the request has set when it failed.
// - Time: resolving the host name and one object; through the system's libraries 2 s (1 s and one retry).
// - Cost: a session and one object.
BOOL WINAPI MIB_IsAccessOK(const char* agent);

// Checks whether the device is this model.
// - Result: TRUE without a request while the model check is off, as in this model.
// - Last error: 87 for a null agent; otherwise unchanged.
// - Time: none while the model check is off; otherwise resolving the host name and one object.
// - Cost: none while the model check is off; otherwise a session and one object.
BOOL WINAPI MIB_IsModelOK(const char* agent);

// Asks for installed options.
// - count: of the items.
// - items: the value of each gets the key of the installed option's item; empty when the option is unknown or
//   the device does not answer. "OpManualFeed" and the output trays have a value without a request, whatever
//   the device answers.
// - Result: TRUE when a session was opened, also when the device has not answered; otherwise FALSE, with the
//   items unchanged.
// - Time: resolving the host name, and at most 15 objects for the 13 options of the table; eight when the
//   printer answers none. The time for an object is above.
// - Cost: a session. "OpMemory" takes up to eight requests, one for each size until one matches;
//   "OpManualFeed" and the output trays none; any other option one.
BOOL WINAPI MIB_OptionRequest(const char* agent, DWORD count, TelmarOptionRequestItem* items);

// Asks for the levels of supplies.
// - count: of the items.
// - items: each gets state, value and colour; all 0 when they are not available. A supply that printers are
//   not asked for has state 3.
// - Result: FALSE when no session was opened, with the items unchanged, and at the first name that is not in
//   the list: that item is cleared, those after it are unchanged. Otherwise TRUE.
// - Time: resolving the host name, and at most ten objects for the 12 supplies of the list; five when the
//   printer answers none.
// - Cost: a session, and two objects for each of the five supplies that printers are asked for.
BOOL WINAPI MIB_MrkSupRequest(const char* agent, DWORD count, TelmarMrkSupRequestItem* items);

// Reads the overlays that the printer stores, up to the first whose object at `firstOid` of the table is
// empty or missing. Texts are cut at 127 bytes.
// - storage: 0 or 1, the number of the overlay table's selector that chooses the overlays.
// - Result: one block, which the caller releases by MIB_FreeOverlayInfo; null when no session was opened, a
//   request failed, the storage is any other, or memory is missing.
// - Last error: 87 for a null agent or another storage; what the session or the request has set when it
//   failed.
// - Time: resolving the host name and the answers; it ends with the first object that is not answered. At
//   most 32,767 overlays are read.
// - Cost: a session, up to three objects for each overlay of the printer and one more, a block that doubles
//   while it is filled, and the result.
TelmarOverlayInfo* WINAPI MIB_OverlayRequest(const char* agent, int32_t storage);

// Reads the colour profiles that the printer stores, up to the first whose object at `secondOid` of the table
// is empty or missing. Texts are cut at 127 bytes. A profile whose storage has an unknown number is left out.
// - Result: one block, which the caller releases by MIB_FreeProfileInfo; null when no session was opened, a
//   request failed, or memory is missing.
// - Last error: 87 for a null agent; what the session or the request has set when it failed.
// - Time: resolving the host name and the answers; it ends with the first object that is not answered. At
//   most 32,767 profiles are read.
// - Cost: a session, up to seven objects for each profile of the printer and one more, a block that doubles
//   while it is filled, and the result.
TelmarProfileInfo* WINAPI MIB_ProfileRequest(const char* agent);

// Two names of one function: releases a block of the two requests above.
// - block: null is accepted.
// - Last error: unchanged.
// - Time: none.
// - Cost: none; it frees the block.
void WINAPI MIB_FreeOverlayInfo(void* block);
void WINAPI MIB_FreeProfileInfo(void* block);

// --- Exports: queries through the bidirectional library
//
// Each loads TELMAR_B.DLL and frees it before it returns: first by its bare name, in the system's search
// order, then from the module's folder. Each call blocks its thread until the library has answered.
// - agent: a dotted IPv4 address or a host name of at most 63 bytes, in the system's ANSI code page.
// - Time: that of the loads and of the library's calls. The module has no limit of its own.
// - Cost: the library is loaded and freed. Up to eight blocks of memory, which are released.

// Checks whether the library, with all its functions, and the system's libraries that it needs can be loaded.
// - Result: TRUE when all can.
// - Time: that of the loads. No printer is asked.
// - Cost: up to five loads and one block of memory, which are released.
BOOL WINAPI DDProc_IsEnableBdcLib(void);

// Checks whether the device answers.
// - agent: a dotted IPv4 address or a host name of at most 63 bytes, in the system's ANSI code page. Null is
//   answered by FALSE.
// - modelAnswer: set to 1 for a device of exactly this model, else 0; may be null.
// - Result: TRUE when the library has reported the device's name.
// - Cost: the library and one block. Three calls of the library, two of which ask the device.
BOOL WINAPI DDProc_IsCommunicateDevice(const char* agent, int32_t* modelAnswer);

// Asks for installed options.
// - count: of the items.
// - items: the value of each gets the key of the installed option's item; empty when the library does not
//   report the option. Not null.
// - Result: FALSE, with the items unchanged, for a null argument, without the library or memory, and for a
//   device of another model or that does not answer. Otherwise TRUE.
// - Last error: 87 for a null argument; otherwise not defined.
// - Cost: the library and up to eight blocks. Up to 16 calls of the library, whatever the items are.
BOOL WINAPI DDProc_OptionRequest(const char* agent, DWORD count, TelmarOptionRequestItem* items);

// Asks for the paper in input trays.
// - count: of the items.
// - items: the keys of each are set to the paper in the tray, empty where there is no key for it, and the
//   level. A tray that the device lacks or does not report gets the keys for unknown and level 0. Not null.
// - Result: as for DDProc_OptionRequest.
// - Last error: 87 for a null argument; otherwise not defined.
// - Cost: as for DDProc_OptionRequest.
BOOL WINAPI DDProc_InputTrayStatus(const char* agent, DWORD count, TelmarInputTrayStatusItem* items);

// --- Exports: the printer's address

// Finds the network address of the printer behind a print queue, as text in the system's ANSI code page. When
// the settings have an address, it is that; otherwise the queue's port is asked. Outputs that are not
// mentioned below are left unchanged.
// - printerName: as for OpenPrinterW. Not read when the settings have an address.
// - settings: the caller's. Not null.
// - buffer: gets the address with its NUL. Null asks for the size of a queue's address alone.
// - bufferSize: in bytes, with the NUL.
// - neededSize: in bytes, with the NUL; may be null. Set for a queue's address, and for the settings' when it
//   exceeds the buffer's size.
// - Result: from the settings: TRUE when the address has been stored; FALSE when it is empty, can't be
//   converted, or the buffer is null or too small. From the queue: TRUE when the address has been stored, and
//   also when the buffer is null or too small; an address in the registry that can't be converted gives TRUE
//   with a needed size of 0 and nothing stored, so check the size. FALSE when the printer can't be opened,
//   its port can't be read or has no known address, and when the settings are null.
// - Last error: from the settings: unchanged. From the queue: 122 (ERROR_INSUFFICIENT_BUFFER) with TRUE when
//   nothing has been stored; after FALSE as the system left it.
// - Time: none from the settings. From the queue as long as the spooler takes, which may ask a print server.
// - Cost: none from the settings. From the queue up to two printer handles, three blocks of memory, one load
//   of WINSPOOL.DRV and the registry keys of seven port monitors, all released.
BOOL WINAPI DDProc_GetPrinterIPAddress(const wchar_t* printerName, const TelmarAddressSettings* settings,
                                       char* buffer, DWORD bufferSize, DWORD* neededSize);

// --- Callbacks: functions of TELMAR_U.DLL that the dialogs call
//
// Each is exported under the name of its type without "Telmar". Any may be missing; the dialog then works
// without it. They are called on the dialog's thread. What the module passes stays its own or the caller's
// and is not to be kept.

// Results of DoConstraints that refuse a change; any other accepts it.
#define TELMAR_CHANGE_REFUSED      100
#define TELMAR_CHANGE_REFUSED_ALSO 101

// Put the texts of common items, then those of the model, into the dialog's title and controls.
// - dialogId: 0 from the colour dialogs, 155 from the tray dialogs.
typedef void WINAPI TelmarReplaceDlgDispStringCmnItem(HWND dialog, const TelmarControlTextRecord* texts,
                                                      uint32_t dialogId, TelmarDialogContext* context);
typedef void WINAPI TelmarReplaceDlgDispString(HWND dialog, const TelmarControlTextRecord* texts);

// Makes the dialog's hint window. The dialog owns it.
typedef HWND WINAPI TelmarCreateToolWnd(HWND dialog);

// Records the stop icons of the dialog.
typedef void WINAPI TelmarStoreStopIconRect(HWND dialog, const TelmarStopIconTable* table);

// Checks the settings after a control has changed, or all of them.
// - reserved1, reserved2: null.
// - hintWindow: what CreateToolWnd has returned. In a tray dialog with control 0 it is that of the last
//   colour dialog, which may be null or gone.
// - control: the one that has changed; 0: all settings are checked, and nothing is refused.
// - all: -1.
// - Result: one of the two above when the change is refused; the dialog then undoes it.
typedef int32_t WINAPI TelmarDoConstraints(const void* reserved1, HWND dialog, HWND hintWindow,
                                           uint32_t control, int32_t all, const void* reserved2);

// Refreshes the hints on display.
// - dialogId: the dialog's; of the tray dialogs 155, and 156 after a change.
typedef void WINAPI TelmarDispHintControl(HWND dialog, TelmarDialogContext* context, uint16_t dialogId);

// Asked when a colour dialog opens that lists profiles.
// - Result: 0 when the download manager is not installed; its button is then disabled.
typedef int32_t WINAPI TelmarIsInstalledDLManager(void);

// Draws an icon control from its WM_DRAWITEM record.
typedef void WINAPI TelmarReqDrawStopInfoIcon(HWND dialog, uint32_t control, const DRAWITEMSTRUCT* item,
                                              const TelmarStopIconTable* table);

// Runs a dialog modally.
// - resources: TELMAR_S.DLL, as the module has loaded it.
// - owner: the page with the tray-settings button.
// - templateId: 155, 165 or 166.
// - procedure: the module's own.
// - parameter: the dialog's TelmarDialogContext.
// - Result: the dialog's end code; 1 means OK.
typedef INT_PTR WINAPI TelmarMyDialogBox(HINSTANCE resources, HWND owner, uint32_t templateId,
                                         DLGPROC procedure, LPARAM parameter);

// The instance that holds the icons of the tray list.
typedef HINSTANCE WINAPI TelmarGetImgResInst(void);

#ifdef __cplusplus
}
#endif

#endif
