// Control text tables: see the header.
#include "paramdata/control_texts.h"

#include "base/text.h"
#include "paramdata/prm_readers.h"

// The common property page.
ControlTextRecord propertyTexts[] = {
    {{1130}, L"", "ViewPrinter"},
    {{1130}, L"", "ViewPaper"},
    {{1130}, L"", "ViewCover"},
    {{1130}, L"", "ViewOverlay"},
    {{1130}, L"", "ViewWatermark"},
    {{1130}, L"", "ViewQuality"},
    {{1201}, L"", "PrinterInfoBT"},
    {{1131}, L"", "EasySet"},
    {{-1}, L"", "EasySetDefaults"},
    {{-1}, L"", "EasySetUntitled"},
    {{1133}, L"", "SaveEasySet"},
    {{1134}, L"", "EditEasySet"},
    {{1}, L"", "OK"},
    {{2}, L"", "Cancel"},
    {{1032}, L"", "Default"},
    {{9}, L"", "Help"},
    {}, // end
};

// The colour settings dialogs.
ControlTextRecord colorDialogTexts[] = {
    {{122, 123, 124, 125, 128}, L"", "Dlg_ColorSetting"},
    {{1632}, L"", "RGBProf"},
    {{1506}, L"", "Text"},
    {{1507}, L"", "Text_RGBProf"},
    {{1465}, L"", "Text_RGBColorMatch"},
    {{1466}, L"", "Text_RGBGray"},
    {{1467}, L"", "Text_Halftone"},
    {{1589}, L"", "Text_Destination"},
    {{1501}, L"", "Image"},
    {{1502}, L"", "Img_RGBProf"},
    {{1468}, L"", "Img_RGBColorMatch"},
    {{1469}, L"", "Img_RGBGray"},
    {{1471}, L"", "Img_Halftone"},
    {{1597}, L"", "Img_Destination"},
    {{1473}, L"", "Graphics"},
    {{1475}, L"", "Graph_MatchText"},
    {{1477}, L"", "Graph_MatchImage"},
    {{1511}, L"", "Graph_RGBProf"},
    {{1514}, L"", "Graph_RGBColorMatch"},
    {{1517}, L"", "Graph_RGBGray"},
    {{1520}, L"", "Graph_Halftone"},
    {{1582}, L"", "Graph_Destination"},
    {{1523}, L"", "PSProfile"},
    {{1398}, L"", "SimulationProf"},
    {{1526}, L"", "MatchPaperColor"},
    {{1625}, L"", "Simu_CMYKGray"},
    {{1630}, L"", "PSProfile2"},
    {{1408}, L"", "DestinationProf"},
    {{1393}, L"", "Profile_Download"},
    {{1528}, L"", "ManageProfile"},
    {}, // end
};

// The tray-setting dialogs; -1: the columns of their list view.
ControlTextRecord trayDialogTexts[] = {
    {{155}, L"", "Dlg_PaperSourceTraySetting"},
    {{1845}, L"", "MediaType_Info"},
    {{-1}, L"", "MediaTypeList_Tray"},
    {{-1}, L"", "MediaTypeList_Size"},
    {{-1}, L"", "MediaTypeList_Orient"},
    {{-1}, L"", "MediaTypeList_Type"},
    {{-1}, L"", "MediaTypeList_Weight"},
    {{-1}, L"", "MediaTypeList_Color"},
    {{-1}, L"", "MediaTypeList_Hole"},
    {{1859}, L"", "MediaType_Size"},
    {{1861}, L"", "MediaType_Orientation"},
    {{1005}, L"", "MediaType_Paper"},
    {{1084}, L"", "MediaType_Weight"},
    {{1089}, L"", "MediaType_Color"},
    {{1097}, L"", "MediaType_Hole"},
    {}, // end
};

bool ApplyControlTexts(const PrmFile& file, const char* entry, ControlTextRecord* table) {
    PrmItems items;
    if (!PrmFindItems(file, entry, items))
        return false;
    PrmForEachInChain(file, items, [&](const PrmItemHead& item, const PrmText& key) {
        for (ControlTextRecord* row = table; row->key[0] != 0; ++row) {
            if (!SameText(row->key, key))
                continue;
            PrmReadDisplay(file, item.display, row->display);
            break;
        }
        return true;
    });
    return true;
}
