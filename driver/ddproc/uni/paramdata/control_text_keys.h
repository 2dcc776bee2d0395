// The texts of the dialogs by key, each with the controls that show it. The module's text tables and the
// compiler of parameter data files both take them from here.
#ifndef PARAMDATA_CONTROL_TEXT_KEYS_H
#define PARAMDATA_CONTROL_TEXT_KEYS_H

#include <cstdint>

struct ControlTextRow {
    int32_t identifiers[5]; // the dialog's templates; or a control and 0s; or -1: a column of the list view
    const char* key;
};

// The common property page.
inline constexpr ControlTextRow kPropertyTexts[] = {
    {{1130}, "ViewPrinter"},
    {{1130}, "ViewPaper"},
    {{1130}, "ViewCover"},
    {{1130}, "ViewOverlay"},
    {{1130}, "ViewWatermark"},
    {{1130}, "ViewQuality"},
    {{1201}, "PrinterInfoBT"},
    {{1131}, "EasySet"},
    {{-1}, "EasySetDefaults"},
    {{-1}, "EasySetUntitled"},
    {{1133}, "SaveEasySet"},
    {{1134}, "EditEasySet"},
    {{1}, "OK"},
    {{2}, "Cancel"},
    {{1032}, "Default"},
    {{9}, "Help"},
};

// The colour settings dialogs.
inline constexpr ControlTextRow kColorDialogTexts[] = {
    {{122, 123, 124, 125, 128}, "Dlg_ColorSetting"},
    {{1632}, "RGBProf"},
    {{1506}, "Text"},
    {{1507}, "Text_RGBProf"},
    {{1465}, "Text_RGBColorMatch"},
    {{1466}, "Text_RGBGray"},
    {{1467}, "Text_Halftone"},
    {{1589}, "Text_Destination"},
    {{1501}, "Image"},
    {{1502}, "Img_RGBProf"},
    {{1468}, "Img_RGBColorMatch"},
    {{1469}, "Img_RGBGray"},
    {{1471}, "Img_Halftone"},
    {{1597}, "Img_Destination"},
    {{1473}, "Graphics"},
    {{1475}, "Graph_MatchText"},
    {{1477}, "Graph_MatchImage"},
    {{1511}, "Graph_RGBProf"},
    {{1514}, "Graph_RGBColorMatch"},
    {{1517}, "Graph_RGBGray"},
    {{1520}, "Graph_Halftone"},
    {{1582}, "Graph_Destination"},
    {{1523}, "PSProfile"},
    {{1398}, "SimulationProf"},
    {{1526}, "MatchPaperColor"},
    {{1625}, "Simu_CMYKGray"},
    {{1630}, "PSProfile2"},
    {{1408}, "DestinationProf"},
    {{1393}, "Profile_Download"},
    {{1528}, "ManageProfile"},
};

// The tray-setting dialogs.
inline constexpr ControlTextRow kTrayDialogTexts[] = {
    {{155}, "Dlg_PaperSourceTraySetting"},
    {{1845}, "MediaType_Info"},
    {{-1}, "MediaTypeList_Tray"},
    {{-1}, "MediaTypeList_Size"},
    {{-1}, "MediaTypeList_Orient"},
    {{-1}, "MediaTypeList_Type"},
    {{-1}, "MediaTypeList_Weight"},
    {{-1}, "MediaTypeList_Color"},
    {{-1}, "MediaTypeList_Hole"},
    {{1859}, "MediaType_Size"},
    {{1861}, "MediaType_Orientation"},
    {{1005}, "MediaType_Paper"},
    {{1084}, "MediaType_Weight"},
    {{1089}, "MediaType_Color"},
    {{1097}, "MediaType_Hole"},
};

#endif
