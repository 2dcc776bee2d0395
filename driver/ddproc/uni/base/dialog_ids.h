// Identifiers of the model's dialogs, their controls and the icons that they share with the user-interface
// module. They are fixed: the templates, the text tables, the help file and the user-interface module rely on
// the numbers. Preprocessor only, so that resource scripts can include this header, too.
#ifndef BASE_DIALOG_IDS_H
#define BASE_DIALOG_IDS_H

// clang-format off

// Dialog templates
#define IDD_COLOR_COMMON_DESTINATION    122 // colour settings; one destination for the page
#define IDD_COLOR_BASIC                 123 // built-in RGB sources only
#define IDD_COLOR_SIMULATION            124 // with printer simulation
#define IDD_COLOR_SINGLE_SOURCE         125 // one RGB source for the page
#define IDD_COLOR_FULL                  128 // text, images and graphics each with their own lists
#define IDD_TRAYS_6_ATTRIBUTES          155 // tray settings
#define IDD_TRAYS_5_ATTRIBUTES          165 // without the weight
#define IDD_TRAYS_3_ATTRIBUTES          166 // size, orientation and type only

// Icons of the user-interface module
#define IDI_PORTRAIT                    473
#define IDI_LANDSCAPE                   474

// The system's IDOK, IDCANCEL and IDHELP, for programs without its headers
#define IDC_OK_BUTTON                   1
#define IDC_CANCEL_BUTTON               2
#define IDC_HELP_BUTTON                 9

// Common property page
#define IDC_PAGE_VIEW                   1130
#define IDC_PAGE_EASY_SET               1131
#define IDC_PAGE_SAVE_EASY_SET          1133
#define IDC_PAGE_EDIT_EASY_SET          1134
#define IDC_PAGE_PRINTER_INFORMATION    1201

// Pages with the logo
#define IDC_LOGO_ANCHOR                 1074 // the logo is drawn above it
#define IDC_LOGO_MOVED                  1301 // is aligned with its neighbour
#define IDC_LOGO_MOVED_NEIGHBOR         1007

// Colour settings: footer
#define IDC_DEFAULTS                    1032
#define IDC_FOOTER_LINE                 1069

// Colour settings: images
#define IDC_IMAGE_GROUP                 1501
#define IDC_IMAGE_RGB_SOURCE            1504
#define IDC_IMAGE_RGB_SOURCE_LABEL      1502
#define IDC_IMAGE_RGB_SOURCE_ICON       1503
#define IDC_IMAGE_COLOR_MATCH           1354
#define IDC_IMAGE_COLOR_MATCH_LABEL     1468
#define IDC_IMAGE_COLOR_MATCH_ICON      1402
#define IDC_IMAGE_GRAY                  1335
#define IDC_IMAGE_GRAY_LABEL            1469
#define IDC_IMAGE_GRAY_ICON             1403
#define IDC_IMAGE_DESTINATION           1599
#define IDC_IMAGE_DESTINATION_LABEL     1597
#define IDC_IMAGE_DESTINATION_ICON      1601
#define IDC_IMAGE_HALFTONE              1332
#define IDC_IMAGE_HALFTONE_LABEL        1471
#define IDC_IMAGE_HALFTONE_ICON         1401

// Colour settings: text
#define IDC_TEXT_GROUP                  1506
#define IDC_TEXT_RGB_SOURCE             1509
#define IDC_TEXT_RGB_SOURCE_LABEL       1507
#define IDC_TEXT_RGB_SOURCE_ICON        1508
#define IDC_TEXT_COLOR_MATCH            1353
#define IDC_TEXT_COLOR_MATCH_LABEL      1465
#define IDC_TEXT_COLOR_MATCH_ICON       1505
#define IDC_TEXT_GRAY                   1334
#define IDC_TEXT_GRAY_LABEL             1466
#define IDC_TEXT_GRAY_ICON              1510
#define IDC_TEXT_DESTINATION            1592
#define IDC_TEXT_DESTINATION_LABEL      1589
#define IDC_TEXT_DESTINATION_ICON       1594
#define IDC_TEXT_HALFTONE               1330
#define IDC_TEXT_HALFTONE_LABEL         1467
#define IDC_TEXT_HALFTONE_ICON          1400

// Colour settings: graphics, with lists of their own or following images or text
#define IDC_GRAPHICS_GROUP              1473
#define IDC_GRAPHICS_RGB_SOURCE         1513
#define IDC_GRAPHICS_RGB_SOURCE_LABEL   1511
#define IDC_GRAPHICS_RGB_SOURCE_ICON    1512
#define IDC_GRAPHICS_COLOR_MATCH        1516
#define IDC_GRAPHICS_COLOR_MATCH_LABEL  1514
#define IDC_GRAPHICS_COLOR_MATCH_ICON   1515
#define IDC_GRAPHICS_GRAY               1519
#define IDC_GRAPHICS_GRAY_LABEL         1517
#define IDC_GRAPHICS_GRAY_ICON          1518
#define IDC_GRAPHICS_DESTINATION        1584
#define IDC_GRAPHICS_DESTINATION_LABEL  1582
#define IDC_GRAPHICS_DESTINATION_ICON   1587
#define IDC_GRAPHICS_HALFTONE           1522
#define IDC_GRAPHICS_HALFTONE_LABEL     1520
#define IDC_GRAPHICS_HALFTONE_ICON      1521
#define IDC_GRAPHICS_LIKE_IMAGES        1477
#define IDC_GRAPHICS_LIKE_TEXT          1475

// Colour settings: simulation of a press
#define IDC_SIMULATION_GROUP            1523
#define IDC_SIMULATION                  1524
#define IDC_SIMULATION_LABEL            1398
#define IDC_SIMULATION_ICON             1482
#define IDC_MATCH_PAPER_COLOR           1526
#define IDC_MATCH_PAPER_COLOR_ICON      1527
#define IDC_SIMULATION_GRAY             1627
#define IDC_SIMULATION_GRAY_LABEL       1625
#define IDC_SIMULATION_GRAY_ICON        1629

// Colour settings: the whole page
#define IDC_PAGE_RGB_SOURCE             1634
#define IDC_PAGE_RGB_SOURCE_LABEL       1632
#define IDC_PAGE_RGB_SOURCE_ICON        1636
#define IDC_PAGE_DESTINATION_GROUP      1630
#define IDC_PAGE_DESTINATION            1525
#define IDC_PAGE_DESTINATION_LABEL      1408
#define IDC_PAGE_DESTINATION_ICON       1486

// Colour settings: buttons for the printer's profiles, which the user-interface module serves
#define IDC_DOWNLOAD_MANAGER            1393
#define IDC_DOWNLOAD_MANAGER_ICON       1530
#define IDC_MANAGE_PROFILES             1528
#define IDC_MANAGE_PROFILES_ICON        1529

// Tray settings
#define IDC_TRAY_LIST                   1844
#define IDC_TRAY_LIST_LABEL             1845
#define IDC_TRAY_SIZE                   1860
#define IDC_TRAY_SIZE_LABEL             1859
#define IDC_TRAY_ORIENTATION            1862
#define IDC_TRAY_ORIENTATION_LABEL      1861
#define IDC_TRAY_TYPE                   1003
#define IDC_TRAY_TYPE_LABEL             1005
#define IDC_TRAY_WEIGHT                 1086
#define IDC_TRAY_WEIGHT_LABEL           1084
#define IDC_TRAY_COLOR                  1091
#define IDC_TRAY_COLOR_LABEL            1089
#define IDC_TRAY_PRE_PUNCHED            1094
#define IDC_TRAY_PRE_PUNCHED_LABEL      1097

// clang-format on

#endif
