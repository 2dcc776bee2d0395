// Identifiers of the texts of the property sheet, without gaps. Also included by the resource script.
#ifndef WORKBENCH_PROPERTY_SHEET_TEXT_IDS_H
#define WORKBENCH_PROPERTY_SHEET_TEXT_IDS_H

#define TEXT_FIRST 2000

#define TEXT_YES 2000
#define TEXT_NO  2001

// Paper
#define TEXT_TRAY        2002
#define TEXT_SIZE        2003
#define TEXT_ORIENTATION 2004
#define TEXT_TYPE        2005
#define TEXT_WEIGHT      2006
#define TEXT_COLOR       2007
#define TEXT_PRE_PUNCHED 2008
#define TEXT_FINISHING   2009

// Quality
#define TEXT_SETTING           2021
#define TEXT_DEFAULT           2022
#define TEXT_NOW               2023
#define TEXT_NUMBERS           2024
#define TEXT_FROM_TO           2025
#define TEXT_SETTING_OF        2026
#define TEXT_IMAGES            2027
#define TEXT_TEXT              2028
#define TEXT_GRAPHICS          2029
#define TEXT_RGB_SOURCE        2030
#define TEXT_COLOR_MATCHING    2031
#define TEXT_GRAYS             2032
#define TEXT_OUTPUT_PROFILE    2033
#define TEXT_HALFTONE          2034
#define TEXT_SIMULATION        2035
#define TEXT_MATCH_PAPER_COLOR 2036
#define TEXT_SAME_AS_IMAGES    2037
#define TEXT_SAME_AS_TEXT      2038

// Version
#define TEXT_FILE      2039
#define TEXT_VERSION   2040
#define TEXT_DATE      2041
#define TEXT_BYTES     2042
#define TEXT_MISSING   2043
#define TEXT_ASK_RESET 2044

// Errors
#define TEXT_CLIPBOARD_IN_USE 2010
#define TEXT_OTHER_MODEL      2011
#define TEXT_DAMAGED          2013
#define TEXT_DAMAGED_IN_USE   2014
#define TEXT_UNREADABLE       2015
#define TEXT_SAVE_NO_FOLDER   2016
#define TEXT_SAVE_NO_SPACE    2017
#define TEXT_SAVE_NOT_ALLOWED 2018
#define TEXT_SAVE_FAILED      2019
#define TEXT_PRINTER          2020

// The sheet
#define TEXT_CANCEL 2045
#define TEXT_APPLY  2046

#define TEXT_NOT_QUERIED 2047

#define TEXT_DIALOG_FAILED 2048
#define TEXT_CANNOT_START  2012

#define TEXT_END 2049

#endif
