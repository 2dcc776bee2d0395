// Identifiers of the library's texts and of its window. Preprocessor only, so that the resource script can
// include it.
#ifndef UIMODULE_RESOURCE_IDS_H
#define UIMODULE_RESOURCE_IDS_H

// clang-format off

// The window for help and notes
#define IDD_TEXT_WINDOW         1000
#define IDC_TEXT                1001

// Kinds of object, in front of a hint
#define TEXT_IMAGES             2000
#define TEXT_TEXT               2001
#define TEXT_GRAPHICS           2002

// Hints
#define HINT_EXACT_SOURCE       2010
#define HINT_DEVICE_RGB         2011
#define HINT_EXACT_HALFTONE     2012
#define HINT_FINEST             2013
#define HINT_PROFILE_GRAY       2014
#define HINT_BLACK_TONER        2015
#define HINT_MONO_GRAY          2016
#define HINT_MONO_PROFILE       2017
#define HINT_MONO_SIMULATION    2018
#define HINT_PAPER_COLOR        2019
#define HINT_KEEP_PAPER_COLOR   2020
#define HINT_PRESS_GRAY         2021
#define HINT_KEEP_PRESS_GRAY    2022
#define HINT_ENVELOPE_HOLES     2023
#define HINT_FILM_HOLES         2024
#define HINT_THICK_PAPER        2025

// Help
#define HELP_TITLE              2030
#define HELP_MENU               2031
#define HELP_COLORS             2032
#define HELP_RGB_SOURCE         2033
#define HELP_COLOR_MATCH        2034
#define HELP_GRAY               2035
#define HELP_DESTINATION        2036
#define HELP_HALFTONE           2037
#define HELP_GRAPHICS_FOLLOW    2038
#define HELP_SIMULATION         2039
#define HELP_SIMULATION_GRAY    2040
#define HELP_PAPER_COLOR        2041
#define HELP_DOWNLOAD_MANAGER   2042
#define HELP_MANAGE_PROFILES    2043
#define HELP_DEFAULTS           2044
#define HELP_TRAYS              2045
#define HELP_TRAY_LIST          2046
#define HELP_TRAY_SIZE          2047
#define HELP_TRAY_ORIENTATION   2048
#define HELP_TRAY_TYPE          2049
#define HELP_TRAY_WEIGHT        2050
#define HELP_TRAY_COLOR         2051
#define HELP_TRAY_PRE_PUNCHED   2052
#define HELP_STOP_SIGN          2053
#define HELP_BUTTONS            2054

// Profiles in the printer
#define PROFILES_TITLE          2060
#define PROFILES_RGB_SOURCES    2061
#define PROFILES_SIMULATIONS    2062
#define PROFILES_DESTINATIONS   2063
#define PROFILES_NONE           2064
#define PROFILES_UNKNOWN_PLACE  2065
#define PROFILES_PLACE          2070 // and the location's value, from 1 to PROFILES_PLACE_COUNT
#define PROFILES_PLACE_COUNT    5
#define DOWNLOAD_MANAGER_TITLE  2080
#define DOWNLOAD_MANAGER_TEXT   2081

// clang-format on

#endif
