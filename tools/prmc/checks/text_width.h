// How wide a text of the dialogs is.
#ifndef PRMC_CHECKS_TEXT_WIDTH_H
#define PRMC_CHECKS_TEXT_WIDTH_H

#include <string_view>

// Dialog units that the UTF-8 text takes at least, in the dialogs' font. An estimate: what it finds too wide
// for a control is cut there.
int LeastTextWidth(std::string_view text);

#endif
