// The sections of a report's page. Each function returns the elements below the section's heading.
#ifndef WORKBENCH_REPORT_PAGE_SECTIONS_H
#define WORKBENCH_REPORT_PAGE_SECTIONS_H

#include "workbench/lib/document.h"

#include <map>

// The pictures of the printer, each once in the page, however often it is shown.
class PicturePool {
public:
    // Width and height of all pictures.
    explicit PicturePool(const Document& pictureSize);

    // An element that shows the picture, PNG in base 64, inside an SVG element of that size.
    std::string Use(const std::string& picture, const std::string& attributes = {});

    // The definitions of all pictures used.
    std::string Symbols() const;

    const std::string width;
    const std::string height;

private:
    std::map<std::string, size_t> numbers;
};

// `printer` is the document of PrinterLooks, `look` one of its looks.
std::string LookPicture(const Document& printer, const Document& look, PicturePool& pictures);

// The style rules that show the marks chosen on the page.
std::string MarkStyle(const Document& printer);

std::string PrinterSection(const Document& printer, PicturePool& pictures);
std::string DialogSection(const Document& model);
std::string CheckSection(const Document& findings);
std::string TableSection(const Document& group);
std::string DifferenceSection(const Document& here, const Document& there, PicturePool& pictures);

// A picture of a dialog in its size at 96 dots per inch.
std::string DialogPicture(const Document& dialog);

// "As delivered", or the options of a look as a list.
std::string LookCaption(const Document& look);

#endif
