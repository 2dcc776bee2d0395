// The paper in the trays: see the header.
#include "workbench/lib/tray_papers.h"

#include "base/text.h"
#include "workbench/lib/device_options.h"
#include "workbench/lib/output.h"

namespace {

constexpr int32_t kUnknown = -1;

// By position of the attribute: how it is called, and what the printer tells of it.
constexpr struct {
    const char* name;
    QueryKey InputTrayStatusItem::*answer;
} kAttributes[kMediaTypeListCount] = {
    {"size", &InputTrayStatusItem::mediaSize}, {"orientation", &InputTrayStatusItem::orientation},
    {"type", &InputTrayStatusItem::mediaType}, {"weight", &InputTrayStatusItem::weight},
    {"color", &InputTrayStatusItem::color},    {"hole", &InputTrayStatusItem::hole},
};

// Calls `use` with each value that an attribute can take.
template <typename Use>
void ForEachValue(size_t attribute, const Use& use) {
    for (const ItemRecord& item : Listed(AttributeValues(static_cast<MediaTypeList>(attribute))))
        use(item);
}

int32_t ValueOf(size_t attribute, const QueryKey& key) {
    int32_t value = kUnknown;
    ForEachValue(attribute, [&](const ItemRecord& item) {
        if (SameText(item.head.key, key))
            value = static_cast<int32_t>(item.head.value);
    });
    return value;
}

Document NameOf(size_t attribute, int32_t value) {
    Document name;
    ForEachValue(attribute, [&](const ItemRecord& item) {
        if (static_cast<int32_t>(item.head.value) == value)
            name = Utf8(std::wstring_view(item.display, TextLength(item.display)));
    });
    return name;
}

std::string KeyOf(const TrayPaperSetting& paper) {
    return std::string(paper.key, TextLength(paper.key));
}

} // namespace

// That of the model's sources without the automatic one.
TrayPapers UnknownPapers(const FamilyFiles& family) {
    TrayPapers papers = {};
    for (TrayPaperSetting& paper : papers)
        for (const TrayAttribute& attribute : trayAttributes)
            StoreAttribute(paper, attribute, kUnknown);
    auto next = papers.begin();
    for (const InputSlotRecord& source : Listed(family.table->inputTrays)) {
        if (IsAutomaticBin(source.head.value) || next == papers.end())
            continue;
        CopyText(next->key, source.head.key);
        next->bin = source.head.value;
        ++next;
    }
    return papers;
}

TrayPapers AskPapers(const FamilyFiles& family, const std::string& agent) {
    const LibraryRoad road = TryLibraryRoad(family, agent);
    if (!road.isThisModel)
        throw Failure(kExitFailed, agent + ": " + Hint(family, road));
    const TrayAnswers answers = AskTraysByLibrary(family, agent);
    TrayPapers papers = UnknownPapers(family);
    for (TrayPaperSetting& paper : papers)
        for (const InputTrayStatusItem& answer : answers)
            for (size_t i = 0; i < kMediaTypeListCount && SameText(answer.tray, paper.key); ++i)
                StoreAttribute(paper, trayAttributes[i], ValueOf(i, answer.*kAttributes[i].answer));
    return papers;
}

Document PaperChanges(const TrayPapers& before, const TrayPapers& after) {
    Document changes = Document::MakeList();
    for (size_t tray = 0; tray < after.size(); ++tray)
        for (size_t i = 0; i < kMediaTypeListCount; ++i) {
            const int32_t was = LoadAttribute(before[tray], trayAttributes[i]);
            const int32_t is = LoadAttribute(after[tray], trayAttributes[i]);
            if (was != is)
                changes.Add({{"tray", KeyOf(after[tray])},
                             {"attribute", kAttributes[i].name},
                             {"before", NameOf(i, was)},
                             {"after", NameOf(i, is)},
                             {"value", is}});
        }
    return changes;
}

Document PapersDocument(const TrayPapers& papers) {
    Document rows = Document::MakeList();
    for (const TrayPaperSetting& paper : papers) {
        if (paper.key[0] == 0)
            continue;
        Document row = {{"tray", KeyOf(paper)}, {"bin", paper.bin}};
        for (size_t i = 0; i < kMediaTypeListCount; ++i)
            row[kAttributes[i].name] = NameOf(i, LoadAttribute(paper, trayAttributes[i]));
        rows.Add(row);
    }
    return rows;
}
