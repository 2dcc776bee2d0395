// Fills the page: `page.html` in the program's resources has a "{{NAME}}" for each part.
#include "workbench/report/page.h"

#include "workbench/lib/html_form.h"
#include "workbench/lib/table_text.h"
#include "workbench/report/page_ids.h"
#include "workbench/report/page_sections.h"

#include <algorithm>
#include <set>
#include <windows.h>

namespace {

std::string ResourceText(int id) {
    const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(id), RT_RCDATA);
    const auto* text = static_cast<const char*>(LockResource(LoadResource(nullptr, found)));
    if (text == nullptr)
        throw Failure(kExitFailed, "the program lacks the resources of the page; build it again");
    return {text, SizeofResource(nullptr, found)};
}

std::string Facts(const Document& facts) {
    std::string text = "<dl>\n";
    for (const Document::Field& fact : facts.Fields())
        text +=
            "<dt>" + HtmlText(Title(fact.name)) + "</dt><dd>" + HtmlText(CellText(fact.value)) + "</dd>\n";
    return text + "</dl>\n";
}

std::string Head(const Document& model, PicturePool& pictures) {
    std::string text =
        "<div>\n<h1>" + HtmlText(model["name"].Text())
        + "</h1>\n<p class=\"lead\">What the driver offers for this printer: its picture, its dialogs and its "
          "tables, as the driver module <code>TELMAR_D.DLL</code> reads them from the model's parameter "
          "file.</p>\n"
        + Facts(model["facts"]) + "</div>\n";
    if (!model["printer"]["looks"].Elements().empty())
        text += LookPicture(model["printer"], model["printer"]["looks"].Elements()[0], pictures);
    return text;
}

// The sections of the page, in order, with their places in the navigation.
struct SectionText {
    std::string id;
    std::string title;
    std::string count; // shown in the navigation; empty: none
    std::string text;
};

// "Default settings" as "default-settings".
std::string AnchorOf(const std::string& title) {
    std::string id;
    for (const char c : title)
        id += c == ' ' ? '-' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return id;
}

// Those that the driver opens. A dialog has a picture for each resolution.
std::string DialogCount(const Document& dialogs) {
    std::set<int64_t> numbers;
    for (const Document& dialog : dialogs.Elements())
        if (dialog["opens"].Bool())
            numbers.insert(dialog["dialog"].Integer());
    return std::to_string(numbers.size());
}

std::string TableCount(const Document& group) {
    const std::vector<NamedTable> tables = TablesOf(group);
    return std::to_string(std::count_if(tables.begin(), tables.end(), HasContents));
}

std::vector<SectionText> MakeSections(const PageContents& page, PicturePool& pictures) {
    const Document& model = page.model;
    const auto count = [](const Document& rows) { return std::to_string(rows.Elements().size()); };
    std::vector<SectionText> sections = {
        {"", "Printer", count(model["printer"]["looks"]), PrinterSection(model["printer"], pictures)},
        {"", "Dialogs", DialogCount(model["dialogs"]), DialogSection(model)},
        {"", "Model check", page.findings.IsNull() ? "" : count(page.findings), CheckSection(page.findings)},
    };
    if (!page.other.IsNull())
        sections.push_back({"", "Differences", "", DifferenceSection(model, page.other, pictures)});
    for (const Document::Field& group : model["groups"].Fields())
        sections.push_back({"", group.name, TableCount(group.value), TableSection(group.value)});
    for (SectionText& section : sections)
        section.id = AnchorOf(section.title);
    return sections;
}

std::string SectionElements(const std::vector<SectionText>& sections) {
    std::string text;
    for (const SectionText& section : sections)
        text += "<section id=\"" + section.id + "\" aria-labelledby=\"" + section.id + "-title\">\n<h2 id=\""
                + section.id + "-title\">" + HtmlText(section.title) + "</h2>\n" + section.text
                + "</section>\n";
    return text;
}

std::string Links(const std::vector<SectionText>& sections) {
    std::string text;
    for (const SectionText& section : sections)
        text += "<li><a href=\"#" + section.id + "\">" + HtmlText(section.title)
                + (section.count.empty() ? "" : " <span>" + section.count + "</span>") + "</a></li>\n";
    return text;
}

struct Part {
    const char* name;
    std::string text;
};

// Replaces each "{{NAME}}" of the template. What the parts contain is not looked at.
std::string Filled(const std::string& page, const std::vector<Part>& parts) {
    std::string text;
    size_t done = 0;
    for (size_t at = page.find("{{"); at != std::string::npos; at = page.find("{{", done)) {
        const size_t end = page.find("}}", at);
        const std::string name = page.substr(at + 2, end - at - 2);
        text += page.substr(done, at - done);
        for (const Part& part : parts)
            if (name == part.name)
                text += part.text;
        done = end + 2;
    }
    return text + page.substr(done);
}

} // namespace

std::string MakePage(const PageContents& page) {
    PicturePool pictures(page.model["printer"]["size"]);
    const std::string head = Head(page.model, pictures);
    const std::vector<SectionText> sections = MakeSections(page, pictures);
    return Filled(ResourceText(PAGE_HTML), {
                                               {"NAME", HtmlText(page.model["name"].Text())},
                                               {"STYLE", ResourceText(PAGE_CSS)},
                                               {"MARK_STYLE", MarkStyle(page.model["printer"])},
                                               {"SYMBOLS", pictures.Symbols()},
                                               {"LINKS", Links(sections)},
                                               {"HEAD", head},
                                               {"SECTIONS", SectionElements(sections)},
                                               {"SCRIPT", ResourceText(PAGE_JS)},
                                           });
}
