// Identifiers of the property pages and their controls. Also included by the resource script.
#ifndef WORKBENCH_PROPERTY_SHEET_PAGE_IDS_H
#define WORKBENCH_PROPERTY_SHEET_PAGE_IDS_H

#define PROGRAM_ICON 1 // the system shows the one with the lowest number

#define PAGE_PRINTER 101
#define PAGE_PAPER   102
#define PAGE_QUALITY 103
#define PAGE_VERSION 104

#define ID_PICTURE      1001
#define ID_OPTIONS      1002
#define ID_OPTION_ITEMS 1003
#define ID_ADDRESS      1004
#define ID_QUERY        1005
#define ID_PROGRESS     1006
#define ID_STATUS       1007
#define ID_SUPPLIES     1008
#define ID_STORED       1009
#define ID_REFRESH      1010
#define ID_FIND         1011

#define ID_SOURCE      1021
#define ID_TYPE        1022
#define ID_WEIGHT      1023
#define ID_COLOR       1024
#define ID_PRE_PUNCHED 1025
#define ID_FINISHING   1026
#define ID_TRAYS       1027
#define ID_TRAY_BUTTON 1028

#define ID_COLOR_DIALOG 1031
#define ID_BLACK_ONLY   1032
#define ID_CHANGED      1033
#define ID_DEFAULTS     1034
#define ID_DETAILS      1035

#define ID_LOGO  1041
#define ID_FILES 1042
#define ID_RESET 1043
#define ID_COPY  1044

// The dialog that looks for printers.
#define DIALOG_SEARCH   111
#define ID_FOUND        1101
#define ID_FOUND_STATUS 1102

#endif
