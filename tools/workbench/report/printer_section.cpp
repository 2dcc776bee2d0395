// The printer's pictures: one for each combination of options that looks different, then one for each paper
// source and output. A choice on the page highlights one of these on all pictures.
#include "workbench/lib/html_form.h"
#include "workbench/report/page_sections.h"

#include "workbench/lib/table_text.h"
#include "workbench/lib/text.h"

#include <set>

namespace {

std::string MarkName(const Document& printer, const Document& mark) {
    return printer["marks"].Elements().at(static_cast<size_t>(mark["mark"].Integer()))["name"].Text();
}

std::string JoinedNames(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        AddPart(text, name);
    return text;
}

std::string OptionsText(const Document& look) {
    std::string text;
    for (const Document& option : look["options"].Elements())
        text += (text.empty() ? " with " : ", ") + option["feature"].Text() + ": " + option["item"].Text();
    return text.empty() ? " with its default options" : text;
}

std::string PictureElement(const std::string& description, const std::string& uses,
                           const PicturePool& pictures) {
    return "<svg class=\"look\" viewBox=\"0 0 " + pictures.width + " " + pictures.height
           + "\" role=\"img\" aria-label=\"" + HtmlText(description) + "\">" + uses + "</svg>";
}

std::string Card(const std::string& picture, const std::string& caption) {
    return "<li><figure>" + picture + "<figcaption>" + caption + "</figcaption></figure></li>\n";
}

std::string LookCards(const Document& printer, PicturePool& pictures) {
    std::string text = "<ul class=\"cards\">\n";
    for (const Document& look : printer["looks"].Elements())
        text += Card(LookPicture(printer, look, pictures), LookCaption(look));
    return text + "</ul>\n";
}

// The number of each mark that any of the pictures can show.
std::set<size_t> ShownMarks(const Document& printer) {
    std::set<size_t> marks;
    for (const Document& look : printer["looks"].Elements())
        for (const Document& mark : look["marks"].Elements())
            marks.insert(static_cast<size_t>(mark["mark"].Integer()));
    return marks;
}

std::string Choice(const std::string& id, const std::string& name, bool isChosen) {
    return "<label><input type=\"radio\" name=\"mark\" id=\"mark-" + id + "\"" + (isChosen ? " checked" : "")
           + ">" + HtmlText(name) + "</label>\n";
}

std::string MarkChoices(const Document& printer) {
    std::string text = "<fieldset class=\"choices\"><legend>Highlight in all pictures</legend>\n";
    text += Choice("none", "Nothing", true) + Choice("all", "Everything", false);
    for (const size_t mark : ShownMarks(printer))
        text += Choice(std::to_string(mark), printer["marks"].Elements()[mark]["name"].Text(), false);
    return text + "</fieldset>\n";
}

// One card for each highlight that looks different, on the first picture that shows it. Several outputs may
// have the same.
std::string MarkCards(const Document& printer, PicturePool& pictures) {
    std::string text;
    std::set<std::string> shown;
    for (const Document& look : printer["looks"].Elements()) {
        std::map<std::string, std::vector<std::string>> names; // by overlay
        std::vector<std::string> order;
        for (const Document& mark : look["marks"].Elements()) {
            const std::string& overlay = mark["overlay"].Text();
            if (names[overlay].empty() && shown.insert(overlay).second)
                order.push_back(overlay);
            names[overlay].push_back(MarkName(printer, mark));
        }
        for (const std::string& overlay : order) {
            const std::string marks = JoinedNames(names[overlay]);
            text +=
                Card(PictureElement(marks + " highlighted on the printer" + OptionsText(look),
                                    pictures.Use(look["picture"].Text()) + pictures.Use(overlay), pictures),
                     "<strong>" + HtmlText(marks) + "</strong>" + LookCaption(look));
        }
    }
    return "<ul class=\"cards\">\n" + text + "</ul>\n";
}

std::string Note(const char* before, const Document& names, const char* after) {
    std::vector<std::string> texts;
    for (const Document& name : names.Elements())
        texts.push_back(HtmlText(name.Text()));
    return texts.empty() ? ""
                         : "<p class=\"note\">" + std::string(before) + JoinedNames(texts) + after + "</p>\n";
}

} // namespace

PicturePool::PicturePool(const Document& pictureSize)
    : width(CellText(pictureSize.Elements().at(0))), height(CellText(pictureSize.Elements().at(1))) {}

std::string PicturePool::Use(const std::string& picture, const std::string& attributes) {
    const size_t number = numbers.emplace(picture, numbers.size()).first->second;
    return "<use" + attributes + " href=\"#p" + std::to_string(number) + "\"/>";
}

std::string PicturePool::Symbols() const {
    std::string text;
    for (const auto& [picture, number] : numbers)
        text += "<symbol id=\"p" + std::to_string(number) + "\"><image width=\"" + width + "\" height=\""
                + height + "\" href=\"data:image/png;base64," + picture + "\"/></symbol>\n";
    return text;
}

std::string LookPicture(const Document& printer, const Document& look, PicturePool& pictures) {
    std::string uses = pictures.Use(look["picture"].Text());
    std::vector<std::string> names;
    for (const Document& mark : look["marks"].Elements()) {
        uses += pictures.Use(mark["overlay"].Text(), " class=\"mark mark-" + CellText(mark["mark"]) + "\"");
        names.push_back(MarkName(printer, mark));
    }
    return PictureElement("The printer" + OptionsText(look)
                              + (names.empty() ? "" : ". It can highlight: " + JoinedNames(names)),
                          uses, pictures);
}

std::string LookCaption(const Document& look) {
    if (look["options"].Elements().empty())
        return "<ul><li>Default options</li></ul>";
    std::string text = "<ul>";
    for (const Document& option : look["options"].Elements())
        text += "<li><span>" + HtmlText(option["feature"].Text()) + "</span> "
                + HtmlText(option["item"].Text()) + "</li>";
    return text + "</ul>";
}

std::string MarkStyle(const Document& printer) {
    std::string text = "body:has(#mark-all:checked) #printer .mark";
    for (const size_t mark : ShownMarks(printer))
        text +=
            ", body:has(#mark-" + std::to_string(mark) + ":checked) #printer .mark-" + std::to_string(mark);
    return text + " { display: inline; }\n";
}

std::string PrinterSection(const Document& printer, PicturePool& pictures) {
    const bool hasMarks = !ShownMarks(printer).empty();
    const bool hasOptions = printer["looks"].Elements().size() > 1;
    std::string text =
        hasOptions
            ? "<p class=\"lead\">Every combination of options that looks different. A caption lists what "
              "differs from the default options.</p>\n"
            : "<p class=\"lead\">The model has no options that change the picture.</p>\n";
    text += Note("Same picture whatever is chosen: ", printer["unseen"], ".");
    if (!printer["complete"].Bool())
        text += "<p class=\"note\">There are more combinations; the page stops here.</p>\n";
    if (hasMarks)
        text += MarkChoices(printer);
    text += LookCards(printer, pictures);
    if (hasMarks)
        text += "<h3 class=\"group\">Paper sources and outputs</h3>\n"
                + Note("Never highlighted: ", printer["unmarked"], ".") + MarkCards(printer, pictures);
    else
        text += "<p class=\"none\">No paper source or output is highlighted.</p>\n";
    return text;
}
