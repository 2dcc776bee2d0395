// Item keys that the driver looks for, by entry. It passes over an item whose key is not among them, or takes
// 0 for its value. schema.cpp puts them into the entries' rows.
#ifndef PRMC_ITEM_KEYS_H
#define PRMC_ITEM_KEYS_H

// clang-format off

// Tray selections: the paper sources that each offers
constexpr const char* kFrontCoverKeys[] = {
    "FCover_Auto", "FCover_Tray1", "FCover_Tray2", "FCover_Tray3", "FCover_Tray4", "FCover_Tray5",
    "FCover_Manual", "FCover_LCT",
};
constexpr const char* kBackCoverKeys[] = {
    "BCover_Auto", "BCover_Tray1", "BCover_Tray2", "BCover_Tray3", "BCover_Tray4", "BCover_Tray5",
    "BCover_Manual", "BCover_LCT",
};
constexpr const char* kSeparatorKeys[] = {
    "SPage_Auto", "SPage_Tray1", "SPage_Tray2", "SPage_Tray3", "SPage_Tray4", "SPage_Tray5", "SPage_Manual",
};
constexpr const char* kInterleaveKeys[] = {
    "OHPInt_Tray1", "OHPInt_Tray2", "OHPInt_Tray3", "OHPInt_Tray4", "OHPInt_Tray5", "OHPInt_Manual",
    "OHPInt_LCT",
};
constexpr const char* kInserterFrontKeys[] = {"PIFTray1", "PIFTray2"};
constexpr const char* kInserterBackKeys[] = {"PIBTray1", "PIBTray2"};
constexpr const char* kPerPageSourceKeys[] = {
    "PPSTraySameAsBody", "PPSTray1", "PPSTray2", "PPSTray3", "PPSTray4", "PPSTray5", "PPSMANUAL",
    "PPSPITray1", "PPSPITray2", "PPSLCT",
};

// Colour settings
constexpr const char* kColorModeKeys[] = {
    "Color_Auto", "Color_Doc", "Color_Photo", "Color_Presen", "Color_DTP", "Color_Web", "Color_CAD",
    "Color_ICM", "Color_Custom",
};
constexpr const char* kGraphicsKeys[] = {"Graph_MatchText", "Graph_MatchImage"};
constexpr const char* kMatchPaperKeys[] = {"MatchPaperColorON", "MatchPaperColorOFF"};

#define PROFILE_KEYS(object) {                                                                              \
    object "DeviceRGB", object "sRGB", object "AdobeRGB1998", object "AppleRGB", object "CIERGB",           \
    object "ColorMatchRGB", object "NTSC1953", object "PAL", object "SMPTE_C", object "sRGB_MS",            \
    object "WideGamutRGB", object "SMPTE_240M", object "EFIRGB", object "sRGB_Standard",                    \
    object "ProPhotoRGB", object "BlueAdjust"}
#define MATCH_KEYS(object) {object "Vivid", object "Photographic", object "Proof", object "Match"}
#define GRAY_KEYS(object) {object "4Color", object "BandG", object "BlackOnly"}
constexpr const char* kTextProfileKeys[] = PROFILE_KEYS("Text_");
constexpr const char* kImgProfileKeys[] = PROFILE_KEYS("Img_");
constexpr const char* kGraphProfileKeys[] = PROFILE_KEYS("Graph_");
constexpr const char* kTextMatchKeys[] = MATCH_KEYS("Text_");
constexpr const char* kImgMatchKeys[] = MATCH_KEYS("Img_");
constexpr const char* kGraphMatchKeys[] = MATCH_KEYS("Graph_");
constexpr const char* kTextGrayKeys[] = GRAY_KEYS("Text_");
constexpr const char* kImgGrayKeys[] = GRAY_KEYS("Img_");
constexpr const char* kGraphGrayKeys[] = GRAY_KEYS("Graph_");
#undef GRAY_KEYS
#undef MATCH_KEYS
#undef PROFILE_KEYS

// The first text key is a letter short, unlike the others.
constexpr const char* kTextHalftoneKeys[] = {"Text_UltraDetai", "Text_Detail", "Text_Smooth"};
constexpr const char* kImgHalftoneKeys[] = {"Img_UltraDetail", "Img_Detail", "Img_Smooth"};
constexpr const char* kGraphHalftoneKeys[] = {
    "Graph_HalftoneText", "Graph_HalftoneImage", "Graph_UltraDetail", "Graph_Detail", "Graph_Smooth",
};
constexpr const char* kTextDestinationKeys[] = {"Text_DestAuto"};
constexpr const char* kImgDestinationKeys[] = {"Img_DestAuto"};
constexpr const char* kGraphDestinationKeys[] = {"Graph_DestAuto"};

// Texts of the dialogs
constexpr const char* kPropertyKeys[] = {
    "ViewPrinter", "ViewPaper", "ViewCover", "ViewOverlay", "ViewWatermark", "ViewQuality", "PrinterInfoBT",
    "EasySet", "EasySetDefaults", "EasySetUntitled", "SaveEasySet", "EditEasySet",
    "OK", "Cancel", "Default", "Help",
};
constexpr const char* kColorDialogKeys[] = {
    "Dlg_ColorSetting", "RGBProf",
    "Text", "Text_RGBProf", "Text_RGBColorMatch", "Text_RGBGray", "Text_Halftone", "Text_Destination",
    "Image", "Img_RGBProf", "Img_RGBColorMatch", "Img_RGBGray", "Img_Halftone", "Img_Destination",
    "Graphics", "Graph_MatchText", "Graph_MatchImage", "Graph_RGBProf", "Graph_RGBColorMatch",
    "Graph_RGBGray", "Graph_Halftone", "Graph_Destination",
    "PSProfile", "SimulationProf", "MatchPaperColor", "Simu_CMYKGray", "PSProfile2", "DestinationProf",
    "Profile_Download", "ManageProfile",
};
constexpr const char* kTrayDialogKeys[] = {
    "Dlg_PaperSourceTraySetting", "MediaType_Info",
    "MediaTypeList_Tray", "MediaTypeList_Size", "MediaTypeList_Orient", "MediaTypeList_Type",
    "MediaTypeList_Weight", "MediaTypeList_Color", "MediaTypeList_Hole",
    "MediaType_Size", "MediaType_Orientation", "MediaType_Paper", "MediaType_Weight", "MediaType_Color",
    "MediaType_Hole",
};

// Texts of what may be in a tray
constexpr const char* kSizeTextKeys[] = {"MediaTypeList_Size_Unknown"};
constexpr const char* kOrientationTextKeys[] = {
    "MediaTypeList_Portrait", "MediaTypeList_Landscape", "MediaTypeList_Orient_Unknown",
};
constexpr const char* kTypeTextKeys[] = {"MediaTypeList_Type_Unknown"};
constexpr const char* kWeightTextKeys[] = {"MediaTypeList_Weight_Unknown"};
constexpr const char* kColorTextKeys[] = {"MediaTypeList_Color_Unknown"};
constexpr const char* kHoleTextKeys[] = {"MediaTypeList_Hole_Unknown"};
// clang-format on

#endif
