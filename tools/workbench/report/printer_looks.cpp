// Finds the pictures by trial: from each picture found, every option that DrawPrinterView reads is set to
// each of its items. So a picture is found with the fewest changes that lead to it.
#include "workbench/report/printer_looks.h"

#include "workbench/lib/option_words.h"
#include "workbench/lib/picture.h"
#include "workbench/lib/printer_scene.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <set>

namespace {

constexpr size_t kMaxLooks = 120;

constexpr const char* kCaptionOption = "OpMachine"; // the picture shows its item's name

bool IsDrawn(const FeatureRecord& feature) {
    const auto isFeature = [&](const SummarizedOption& option) {
        return SameText(KeyOf(feature), option.feature);
    };
    return SameText(KeyOf(feature), kCaptionOption)
           || std::any_of(std::begin(kSummarizedOptions), std::end(kSummarizedOptions), isFeature);
}

using UnitField = int32_t OptionSummary::*;

// Something that a picture can highlight: a paper source by key, or an output by flag. The module draws it
// whether or not the unit is there that has it, so the units that it needs are checked here.
struct Mark {
    std::string name;
    std::string tray;
    int outputFlag;               // 0: none
    std::vector<UnitField> needs; // numbers of units that must not be 0
};

const struct {
    const char* name;
    int firstFlag;
    int lastFlag;
    std::vector<UnitField> needs;
} kOutputs[] = {
    {"Output tray ", 1, 5, {&OptionSummary::outputUnit}},
    {"Mail bin ", 6, 9, {&OptionSummary::outputUnit, &OptionSummary::mailbinKit}},
};
constexpr const char* kTrayOfUnit = "InTrayLCT"; // part of the input unit

std::vector<Mark> MarksOf(const DeviceTable& table) {
    std::vector<Mark> marks;
    for (const InputSlotRecord& source : Listed(table.inputTrays)) {
        Mark mark = {FieldText(source.display), FieldText(source.head.key), 0, {}};
        if (SameText(source.head.key, kTrayOfUnit))
            mark.needs.push_back(&OptionSummary::inputUnit);
        marks.push_back(mark);
    }
    for (const auto& outputs : kOutputs)
        for (int flag = outputs.firstFlag; flag <= outputs.lastFlag; ++flag)
            marks.push_back(
                {outputs.name + std::to_string(flag - outputs.firstFlag + 1), "", flag, outputs.needs});
    return marks;
}

using Pixels = std::vector<uint32_t>;
constexpr size_t kPixelCount = size_t{kSceneSize.cx} * kSceneSize.cy;
constexpr uint32_t kOpaque = 0xFF000000;

struct Overlay {
    size_t mark; // position in the list of marks
    Pixels pixels;
};

struct Look {
    Pixels plain;
    std::vector<Overlay> overlays;
};

Pixels DrawPixels(const FamilyFiles& family, const PrinterScene& scene) {
    const Canvas canvas(kSceneSize);
    DrawScene(family, scene, canvas.context, kSceneSize);
    GdiFlush();
    Pixels pixels(kPixelCount);
    memcpy(pixels.data(), canvas.pixels, pixels.size() * sizeof(pixels[0]));
    for (uint32_t& pixel : pixels)
        pixel |= kOpaque; // GDI leaves this byte undefined
    return pixels;
}

// The pixels of the picture that differ from the plain one; all others are transparent. Empty when none does.
Pixels Difference(const Pixels& picture, const Pixels& plain) {
    if (picture == plain)
        return {};
    Pixels pixels(plain.size());
    for (size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = picture[i] != plain[i] ? picture[i] : 0;
    return pixels;
}

Look DrawLook(const FamilyFiles& family, const std::vector<Mark>& marks, const OptionFeatures& options) {
    const OptionSummary units = SummarizeOptions(options.features.data(), options.settings.data());
    Look look = {DrawPixels(family, {options, true, "", {}}), {}};
    for (size_t i = 0; i < marks.size(); ++i) {
        const Mark& mark = marks[i];
        if (!std::all_of(mark.needs.begin(), mark.needs.end(),
                         [&](UnitField unit) { return units.*unit != 0; }))
            continue;
        PrinterScene scene = {options, true, mark.tray, {}};
        if (mark.outputFlag != 0)
            scene.outputFlags.push_back(mark.outputFlag);
        Pixels pixels = Difference(DrawPixels(family, scene), look.plain);
        if (!pixels.empty())
            look.overlays.push_back({i, std::move(pixels)});
    }
    return look;
}

// A number that stands for all pixels of the look.
size_t Fingerprint(const Look& look) {
    const auto bytes = [](const Pixels& pixels) {
        return std::string(reinterpret_cast<const char*>(pixels.data()), pixels.size() * sizeof(pixels[0]));
    };
    std::string all = bytes(look.plain);
    for (const Overlay& overlay : look.overlays)
        all += std::to_string(overlay.mark) + bytes(overlay.pixels);
    return std::hash<std::string>()(all);
}

std::string PngText(const Pixels& pixels) {
    const Canvas canvas(kSceneSize);
    memcpy(canvas.pixels, pixels.data(), pixels.size() * sizeof(pixels[0]));
    return Base64(EncodePng(canvas, true));
}

size_t ItemCount(const FeatureRecord& feature) {
    return Listed(feature.items).count;
}

// The search, and what it has found.
struct LookSearch {
    const FamilyFiles& family;
    const std::vector<Mark> marks;
    std::vector<OptionFeatures> options; // of each look, in the order in which they were found
    std::vector<Look> looks = {};
    std::set<std::vector<FeatureSettings>> tried = {};
    std::set<size_t> known = {};
    bool isComplete = true;

    void Try(const OptionFeatures& candidate) {
        if (!tried.insert(candidate.settings).second)
            return;
        Look look = DrawLook(family, marks, candidate);
        if (!known.insert(Fingerprint(look)).second)
            return;
        isComplete = looks.size() < kMaxLooks;
        if (!isComplete)
            return;
        options.push_back(candidate);
        looks.push_back(std::move(look));
    }

    void Run() {
        Try(ReadOptionFeatures(family));
        for (size_t i = 0; i < looks.size() && isComplete; ++i)
            for (size_t feature = 0; feature < options[i].settings.size(); ++feature)
                if (IsDrawn(options[i].features[feature]))
                    TryItems(options[i], feature);
    }

    void TryItems(OptionFeatures from, size_t feature) {
        const size_t items = ItemCount(from.features[feature]);
        for (size_t item = 0; item < items && isComplete; ++item) {
            from.settings[feature] = static_cast<FeatureSettings>(item);
            Try(from);
        }
    }
};

// The options that differ from those of the first look, the defaults.
Document ChangedOptions(const LookSearch& search, size_t at, std::string& id) {
    const OptionFeatures& options = search.options[at];
    Document rows = Document::MakeList();
    for (size_t i = 0; i < options.settings.size(); ++i) {
        const ItemRecord* item = CurrentItem(options, i);
        if (item == nullptr || options.settings[i] == search.options[0].settings[i])
            continue;
        const char* feature = KeyOf(options.features[i]);
        id += std::string(id.empty() ? "" : " ") + feature + "=" + FieldText(item->head.key);
        rows.Add({{"feature", OptionName(feature)}, {"item", FieldText(item->display)}});
    }
    return rows;
}

Document LookDocument(const LookSearch& search, size_t at) {
    std::string id;
    Document options = ChangedOptions(search, at, id);
    Document marks = Document::MakeList();
    for (const Overlay& overlay : search.looks[at].overlays)
        marks.Add({{"mark", overlay.mark}, {"overlay", PngText(overlay.pixels)}});
    return {{"id", id},
            {"options", std::move(options)},
            {"picture", PngText(search.looks[at].plain)},
            {"marks", std::move(marks)}};
}

Document UnmarkedTrays(const LookSearch& search) {
    std::set<size_t> shown;
    for (const Look& look : search.looks)
        for (const Overlay& overlay : look.overlays)
            shown.insert(overlay.mark);
    Document names = Document::MakeList();
    for (size_t i = 0; i < search.marks.size(); ++i)
        if (search.marks[i].outputFlag == 0 && shown.count(i) == 0)
            names.Add(search.marks[i].name);
    return names;
}

// Options with a choice that are the same in all looks.
Document UnseenOptions(const LookSearch& search) {
    const OptionFeatures& defaults = search.options[0];
    Document names = Document::MakeList();
    for (size_t i = 0; i < defaults.settings.size(); ++i) {
        const auto isSame = [&](const OptionFeatures& options) {
            return options.settings[i] == defaults.settings[i];
        };
        if (ItemCount(defaults.features[i]) > 1
            && std::all_of(search.options.begin(), search.options.end(), isSame))
            names.Add(OptionName(KeyOf(defaults.features[i])));
    }
    return names;
}

} // namespace

Document PrinterLooks(const FamilyFiles& family) {
    LookSearch search = {family, MarksOf(*family.table), {}};
    search.Run();
    Document marks = Document::MakeList();
    for (const Mark& mark : search.marks)
        marks.Add({{"source", mark.tray.empty() ? mark.name : mark.tray}, {"name", mark.name}});
    Document looks = Document::MakeList();
    for (size_t i = 0; i < search.looks.size(); ++i)
        looks.Add(LookDocument(search, i));
    return {{"size", {kSceneSize.cx, kSceneSize.cy}},
            {"marks", std::move(marks)},
            {"looks", std::move(looks)},
            {"unmarked", UnmarkedTrays(search)},
            {"unseen", UnseenOptions(search)},
            {"complete", search.isComplete}};
}
