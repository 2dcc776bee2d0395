// The texts of the dialogs by key, each with the controls that show it. The module's text tables and the
// compiler of parameter data files both take them from here.
#ifndef PARAMDATA_CONTROL_TEXT_KEYS_H
#define PARAMDATA_CONTROL_TEXT_KEYS_H

#include "base/dialog_ids.h"

#include <cstdint>

struct ControlTextRow {
    int32_t identifiers[5]; // the dialog's templates; or a control and 0s; or -1: a column of the list view
    const char* key;
};

// The common property page.
inline constexpr ControlTextRow kPropertyTexts[] = {
    {{IDC_PAGE_VIEW}, "ViewPrinter"},
    {{IDC_PAGE_VIEW}, "ViewPaper"},
    {{IDC_PAGE_VIEW}, "ViewCover"},
    {{IDC_PAGE_VIEW}, "ViewOverlay"},
    {{IDC_PAGE_VIEW}, "ViewWatermark"},
    {{IDC_PAGE_VIEW}, "ViewQuality"},
    {{IDC_PAGE_PRINTER_INFORMATION}, "PrinterInfoBT"},
    {{IDC_PAGE_EASY_SET}, "EasySet"},
    {{-1}, "EasySetDefaults"},
    {{-1}, "EasySetUntitled"},
    {{IDC_PAGE_SAVE_EASY_SET}, "SaveEasySet"},
    {{IDC_PAGE_EDIT_EASY_SET}, "EditEasySet"},
    {{IDC_OK_BUTTON}, "OK"},
    {{IDC_CANCEL_BUTTON}, "Cancel"},
    {{IDC_DEFAULTS}, "Default"},
    {{IDC_HELP_BUTTON}, "Help"},
};

// The colour settings dialogs.
inline constexpr ControlTextRow kColorDialogTexts[] = {
    {{IDD_COLOR_COMMON_DESTINATION, IDD_COLOR_BASIC, IDD_COLOR_SIMULATION, IDD_COLOR_SINGLE_SOURCE,
      IDD_COLOR_FULL},
     "Dlg_ColorSetting"},
    {{IDC_PAGE_RGB_SOURCE_LABEL}, "RGBProf"},
    {{IDC_TEXT_GROUP}, "Text"},
    {{IDC_TEXT_RGB_SOURCE_LABEL}, "Text_RGBProf"},
    {{IDC_TEXT_COLOR_MATCH_LABEL}, "Text_RGBColorMatch"},
    {{IDC_TEXT_GRAY_LABEL}, "Text_RGBGray"},
    {{IDC_TEXT_HALFTONE_LABEL}, "Text_Halftone"},
    {{IDC_TEXT_DESTINATION_LABEL}, "Text_Destination"},
    {{IDC_IMAGE_GROUP}, "Image"},
    {{IDC_IMAGE_RGB_SOURCE_LABEL}, "Img_RGBProf"},
    {{IDC_IMAGE_COLOR_MATCH_LABEL}, "Img_RGBColorMatch"},
    {{IDC_IMAGE_GRAY_LABEL}, "Img_RGBGray"},
    {{IDC_IMAGE_HALFTONE_LABEL}, "Img_Halftone"},
    {{IDC_IMAGE_DESTINATION_LABEL}, "Img_Destination"},
    {{IDC_GRAPHICS_GROUP}, "Graphics"},
    {{IDC_GRAPHICS_LIKE_TEXT}, "Graph_MatchText"},
    {{IDC_GRAPHICS_LIKE_IMAGES}, "Graph_MatchImage"},
    {{IDC_GRAPHICS_RGB_SOURCE_LABEL}, "Graph_RGBProf"},
    {{IDC_GRAPHICS_COLOR_MATCH_LABEL}, "Graph_RGBColorMatch"},
    {{IDC_GRAPHICS_GRAY_LABEL}, "Graph_RGBGray"},
    {{IDC_GRAPHICS_HALFTONE_LABEL}, "Graph_Halftone"},
    {{IDC_GRAPHICS_DESTINATION_LABEL}, "Graph_Destination"},
    {{IDC_SIMULATION_GROUP}, "PSProfile"},
    {{IDC_SIMULATION_LABEL}, "SimulationProf"},
    {{IDC_MATCH_PAPER_COLOR}, "MatchPaperColor"},
    {{IDC_SIMULATION_GRAY_LABEL}, "Simu_CMYKGray"},
    {{IDC_PAGE_DESTINATION_GROUP}, "PSProfile2"},
    {{IDC_PAGE_DESTINATION_LABEL}, "DestinationProf"},
    {{IDC_DOWNLOAD_MANAGER}, "Profile_Download"},
    {{IDC_MANAGE_PROFILES}, "ManageProfile"},
};

// The tray-setting dialogs.
inline constexpr ControlTextRow kTrayDialogTexts[] = {
    {{IDD_TRAYS_6_ATTRIBUTES}, "Dlg_PaperSourceTraySetting"},
    {{IDC_TRAY_LIST_LABEL}, "MediaType_Info"},
    {{-1}, "MediaTypeList_Tray"},
    {{-1}, "MediaTypeList_Size"},
    {{-1}, "MediaTypeList_Orient"},
    {{-1}, "MediaTypeList_Type"},
    {{-1}, "MediaTypeList_Weight"},
    {{-1}, "MediaTypeList_Color"},
    {{-1}, "MediaTypeList_Hole"},
    {{IDC_TRAY_SIZE_LABEL}, "MediaType_Size"},
    {{IDC_TRAY_ORIENTATION_LABEL}, "MediaType_Orientation"},
    {{IDC_TRAY_TYPE_LABEL}, "MediaType_Paper"},
    {{IDC_TRAY_WEIGHT_LABEL}, "MediaType_Weight"},
    {{IDC_TRAY_COLOR_LABEL}, "MediaType_Color"},
    {{IDC_TRAY_PRE_PUNCHED_LABEL}, "MediaType_Hole"},
};

#endif
