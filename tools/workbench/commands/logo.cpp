// `workbench logo`: has the module draw the logo picture of the version page, and writes it.
#include "telmar_d.h"
#include "workbench/commands/commands.h"
#include "workbench/lib/picture_file.h"

namespace {

constexpr LONG kLogoMargin = 12; // pixels of white around the logo
constexpr SIZE kLogoSize = {176, 120};

} // namespace

Document DrawLogo(const FamilyFiles& family, const std::string& out) {
    const Canvas canvas({kLogoSize.cx + 2 * kLogoMargin, kLogoSize.cy + 2 * kLogoMargin});
    EXPORT(family, DrawLogoVersionTab)(canvas.context, nullptr, canvas.size.cx / 2, canvas.size.cy / 2);
    return {{"files", FamilyDocument(family)}, {"picture", WritePicture(canvas, out)}};
}
