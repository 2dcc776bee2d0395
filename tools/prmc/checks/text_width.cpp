// Estimates the width of a text by classes of characters.
#include "prmc/checks/text_width.h"

#include <algorithm>

namespace {

// The dialogs name "MS Shell Dlg", which is another sans serif on each system. A class has the least
// width that its characters have in the common ones, rounded down to half a dialog unit; the average letter
// has 4 units by definition. What is in no class, such as a letter with an accent, counts as the narrowest.
struct WidthClass {
    int halfUnits;
    std::string_view characters;
};
constexpr WidthClass kClasses[] = {
    {3, "IJ"},          {4, " !\"()*,-./:;[\\]`frt{}"},
    {6, "?^_cksvxyz"},  {7, "#$+0123456789<=>FLPTYabdeghnopqu~"},
    {8, "&ABCEKRSVXZ"}, {9, "DGHNOQU"},
    {10, "%@Mmw"},      {12, "W"},
};
constexpr int kNarrowest = 2;

int HalfUnitsOf(char c) {
    const auto* found = std::find_if(std::begin(kClasses), std::end(kClasses), [c](const WidthClass& row) {
        return row.characters.find(c) != std::string_view::npos;
    });
    return found != std::end(kClasses) ? found->halfUnits : kNarrowest;
}

bool ContinuesCharacter(char c) {
    return (c & 0xC0) == 0x80;
}

} // namespace

int LeastTextWidth(std::string_view text) {
    int halfUnits = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        // A single '&' marks the access key; the next character is drawn.
        const bool isMark = text[i] == '&' && i + 1 < text.size();
        i += isMark ? 1 : 0;
        halfUnits += ContinuesCharacter(text[i]) ? 0 : HalfUnitsOf(text[i]);
    }
    return halfUnits / 2;
}
