// The dialogs, the findings of the model check, the tables, and the comparison with another model.
#include "workbench/lib/html_form.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/table_text.h"
#include "workbench/lib/text.h"
#include "workbench/report/differences.h"
#include "workbench/report/page_sections.h"

namespace {

// --- Dialogs

std::string NumberText(const Document& number) {
    return std::to_string(number.Integer());
}

std::string DialogName(const Document& dialog) {
    return "Dialog " + NumberText(dialog["dialog"]) + ": " + dialog["title"].Text();
}

// The pictures of one dialog at each resolution; the controls, which are the same, once.
std::string DialogArticle(const std::vector<const Document*>& resolutions) {
    const Document& first = *resolutions[0];
    std::string text = "<article class=\"dialog\"><h3>" + HtmlText(DialogName(first)) + "</h3>\n";
    for (const Document* dialog : resolutions)
        text += "<figure>" + DialogPicture(*dialog) + "<figcaption>" + NumberText((*dialog)["dpi"])
                + " dots per inch, " + NumberText((*dialog)["width"]) + " × "
                + NumberText((*dialog)["height"]) + " pixels</figcaption></figure>\n";
    return text + HtmlTable("Controls of dialog " + NumberText(first["dialog"]), first["controls"])
           + "</article>\n";
}

// The dialogs that the model opens, or the others.
std::string DialogArticles(const Document& dialogs, bool opens) {
    std::map<int64_t, std::vector<const Document*>> byNumber;
    for (const Document& dialog : dialogs.Elements())
        if (dialog["opens"].Bool() == opens)
            byNumber[dialog["dialog"].Integer()].push_back(&dialog);
    std::string text;
    for (const auto& [number, resolutions] : byNumber)
        text += DialogArticle(resolutions);
    return text;
}

// --- Findings

// "FILE:LINE:COLUMN" as one field.
Document FindingRows(const Document& findings) {
    Document rows = Document::MakeList();
    for (const Document& finding : findings.Elements()) {
        std::string place = CellText(finding["file"]);
        for (const char* number : {"line", "column"})
            if (finding[number].IsInteger())
                place += ":" + NumberText(finding[number]);
        rows.Add({{"severity", finding["severity"]}, {"place", place}, {"message", finding["message"]}});
    }
    return rows;
}

// --- Differences

std::string DifferenceCell(const Document& value) {
    if (!value.IsObject())
        return HtmlText(CellText(value));
    return "<ins>" + HtmlText(CellText(value["here"])) + "</ins> <del>" + HtmlText(CellText(value["there"]))
           + "</del>";
}

std::string TableDifferenceText(const Document& tables) {
    std::string text;
    for (const Document& table : tables.Elements()) {
        if (!table["rows"].Elements().empty())
            text += HtmlTable(table["name"].Text(), table["rows"], {true, DifferenceCell});
        if (table["reordered"].Bool())
            text += "<p class=\"note\">" + HtmlText(table["name"].Text())
                    + ": the rows are in another order.</p>\n";
    }
    return text;
}

// The facts in which the models differ.
std::string FactsTable(const Document& here, const Document& there) {
    Document rows = Document::MakeList();
    for (const Document::Field& fact : here["facts"].Fields())
        if (CellText(fact.value) != CellText(there["facts"][fact.name]))
            rows.Add(
                {{"fact", Title(fact.name)}, {"here", fact.value}, {"there", there["facts"][fact.name]}});
    return HtmlTable("Facts", rows, {true});
}

std::string Figure(const std::string& picture, const std::string& caption) {
    return "<figure>" + picture + "<figcaption>" + caption + "</figcaption></figure>\n";
}

// The pictures that differ, side by side, then those that only one model has. `picture` returns the picture
// of a row of the model here (true) or there, `caption` what is below it.
template <typename Picture, typename Caption>
std::string PictureDifferenceText(const std::string& what, const char* style, const Document& differences,
                                  const Picture& picture, const Caption& caption) {
    std::string text;
    for (const Document& pair : differences["pairs"].Elements())
        text += "<div class=\"pair " + std::string(style) + "\">\n"
                + Figure(picture(pair["here"], true), "<strong>Here</strong> " + caption(pair["here"]))
                + Figure(picture(pair["there"], false), "<strong>There</strong> " + caption(pair["there"]))
                + "</div>\n";
    if (!text.empty())
        text = "<h3 class=\"group\">" + what + " that differ</h3>\n" + text;
    for (const bool isHere : {true, false}) {
        const Document& rows = differences[isHere ? "onlyHere" : "onlyThere"];
        if (rows.Elements().empty())
            continue;
        text += "<h3 class=\"group\">" + what + " only " + (isHere ? "here" : "there")
                + "</h3>\n<ul class=\"cards " + style + "\">\n";
        for (const Document& row : rows.Elements())
            text += "<li>" + Figure(picture(row, isHere), caption(row)) + "</li>\n";
        text += "</ul>\n";
    }
    return text;
}

std::string DialogCaption(const Document& dialog) {
    return HtmlText(DialogName(dialog)) + ", " + NumberText(dialog["dpi"]) + " dots per inch";
}

} // namespace

std::string DialogPicture(const Document& dialog) {
    constexpr int64_t kUsualResolution = 96;
    std::string shows;
    for (const Document& control : dialog["controls"].Elements()) {
        const std::string text = CellText(control["label"]) + " " + CellText(control["shows"]);
        AddPart(shows, text.substr(0, text.find_last_not_of(' ') + 1));
    }
    const std::string width =
        std::to_string(dialog["width"].Integer() * kUsualResolution / dialog["dpi"].Integer());
    return "<img width=\"" + width + "\" alt=\""
           + HtmlText(DialogName(dialog) + ", as it opens at " + NumberText(dialog["dpi"])
                      + " dots per inch. Its controls: " + shows)
           + "\" src=\"data:image/png;base64," + dialog["picture"].Text() + "\">";
}

std::string DialogSection(const Document& model) {
    const Document& dialogs = model["dialogs"];
    if (dialogs.Elements().empty())
        return "<p class=\"none\">No pictures of dialogs were given.</p>\n";
    const std::string others = DialogArticles(dialogs, false);
    const std::string note =
        model["facts"]["colour"].Bool()
            ? ""
            : "<p class=\"note\">This model has no colour: the user-interface module should "
              "not offer the colour dialog.</p>\n";
    return "<p class=\"lead\">The dialogs that the driver opens for this model, as they open: nothing is changed "
           "and no printer has been queried.</p>\n"
           + note + DialogArticles(dialogs, true)
           + (others.empty()
                  ? ""
                  : "<details class=\"more\"><summary>The other colour dialogs, with the lists of this "
                    "model</summary>\n"
                        + others + "</details>\n");
}

std::string CheckSection(const Document& findings) {
    if (findings.IsNull())
        return "<p class=\"none\">The findings of a check were not given.</p>\n";
    if (findings.Elements().empty())
        return "<p class=\"none\">The check has found nothing.</p>\n";
    return "<p class=\"lead\">What <code>prmc check</code> has found in the model file.</p>\n"
           + HtmlTable("Findings", FindingRows(findings), {true});
}

std::string TableSection(const Document& group) {
    return "<p class=\"tools\"><button type=\"button\" data-open=\"yes\">Open all</button> <button type=\"button\" "
           "data-open=\"no\">Close all</button></p>\n"
           + HtmlForm(group);
}

std::string DifferenceSection(const Document& here, const Document& there, PicturePool& pictures) {
    const std::string tables = TableDifferenceText(TableDifferences(here, there));
    const std::string looks = PictureDifferenceText(
        "Pictures of the printer", "small", LookDifferences(here["printer"], there["printer"]),
        [&](const Document& look, bool isHere) {
            return LookPicture((isHere ? here : there)["printer"], look, pictures);
        },
        LookCaption);
    const std::string dialogs = PictureDifferenceText(
        "Dialogs", "large", DialogDifferences(here["dialogs"], there["dialogs"]),
        [](const Document& dialog, bool) { return DialogPicture(dialog); }, DialogCaption);
    const auto part = [](const std::string& text, const char* none) {
        return text.empty() ? "<p class=\"none\">" + std::string(none) + "</p>\n" : text;
    };
    const auto name = [](const Document& model) {
        return HtmlText(model["name"].Text() + " (" + model["facts"]["folder"].Text() + ")");
    };
    return "<p class=\"lead\">“Here” is " + name(here) + ", “there” is " + name(there)
           + ", the model to compare with.</p>\n" + FactsTable(here, there)
           + part(tables, "The tables do not differ.")
           + part(looks, "The pictures of the printer do not differ.")
           + part(dialogs, "The dialogs do not differ.");
}
