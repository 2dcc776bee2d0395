// `workbench logo`: the module's logo of the version page as a picture.
#include "workbench/commands/commands.h"
#include "workbench/lib/picture.h"

namespace {

constexpr LONG kLogoMargin = 12; // pixels of white around the logo
constexpr SIZE kLogoSize = {176, 120};

} // namespace

Document DrawLogo(const FamilyFiles& family, const std::string& out) {
    const Canvas canvas({kLogoSize.cx + 2 * kLogoMargin, kLogoSize.cy + 2 * kLogoMargin});
    EXPORT(family, DrawLogoVersionTab)(canvas.context, nullptr, canvas.size.cx / 2, canvas.size.cy / 2);
    return {{"files", FamilyDocument(family)}, {"picture", WritePicture(canvas, out)}};
}
