// Parses a binary file by the schema. All access to the bytes goes through PrmBytes, which checks it.
#include "prmc/forms/prm_parser.h"

#include "common/text.h"
#include "paramdata/prm_layout.h"
#include "prmc/forms/prm_bytes.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace {

class Parser {
public:
    Parser(std::string_view file, Findings& where) : bytes(file, where), findings(where) {}

    Model Parse() {
        Model model;
        if (!bytes.Claim(0, sizeof(PrmHeader), 0, "the header"))
            return model;
        if (bytes.Read32(0) != 0)
            findings.Warning({}, "the header's first word is not 0; it is lost");
        const uint64_t chainEnd = bytes.Read32(offsetof(PrmHeader, chainEnd));
        if (chainEnd > bytes.Size())
            bytes.Error(offsetof(PrmHeader, chainEnd),
                        "the chain end " + Hex(chainEnd) + " is outside the file");
        if (chainEnd <= kPrmFirstEntry)
            bytes.Error(offsetof(PrmHeader, chainEnd), "the file has no entries");
        std::set<uint64_t> seen;
        uint64_t linkAt = offsetof(PrmHeader, chainEnd);
        for (uint64_t at = kPrmFirstEntry; at < chainEnd; at = bytes.Read32(linkAt)) {
            if (!seen.insert(at).second) {
                bytes.Error(linkAt, "the entry chain loops back to " + Hex(at));
                break;
            }
            if (!bytes.Claim(at, sizeof(PrmEntry) + sizeof(PrmEntryInfo), linkAt, "the next entry"))
                break;
            ParseEntry(at, model);
            linkAt = at + offsetof(PrmEntry, next);
        }
        bytes.CheckTexts();
        return model;
    }

private:
    void ParseEntry(uint64_t at, Model& model) {
        const std::string name = bytes.ReadField(at, sizeof(PrmEntry::name));
        const EntryRow* row = FindEntryRow(name);
        if (!row) {
            findings.Warning(AtOffset(at), "unknown entry " + Quote(name) + " is skipped");
            return;
        }
        bytes.SetEntry(name);
        bytes.NoteLoss(at + name.size(), sizeof(PrmEntry::name) - name.size());
        bytes.NoteLoss(at + offsetof(PrmEntry, unread), sizeof(PrmEntry::unread));
        Entry entry{row, name, AtOffset(at), {}, {}};
        if (row->kind->form == Form::kRange)
            ParseRange(at, entry);
        else
            ParseItems(at, entry);
        if (bytes.HasLoss())
            findings.Warning(AtOffset(at), Quote(name) + ": unused bytes are not 0; they are lost");
        if (row->kind->form == Form::kList || !entry.records.empty())
            model.entries.push_back(std::move(entry));
        bytes.SetEntry("");
    }

    void ParseRange(uint64_t entryAt, Entry& entry) {
        const uint64_t at = entryAt + sizeof(PrmEntry) + sizeof(PrmEntryInfo);
        bytes.NoteLoss(entryAt + offsetof(PrmEntry, firstItem), sizeof(PrmEntry::firstItem));
        bytes.NoteLoss(entryAt + sizeof(PrmEntry), sizeof(PrmEntryInfo));
        if (bytes.Claim(at, sizeof(PrmRange), entryAt, "the numeric block"))
            entry.records.push_back(ParseRecord(*entry.row, at));
    }

    void ParseItems(uint64_t entryAt, Entry& entry) {
        const Kind& kind = *entry.row->kind;
        const uint64_t infoAt = entryAt + sizeof(PrmEntry);
        const uint64_t count = bytes.Read32(infoAt + offsetof(PrmEntryInfo, itemCount));
        const uint64_t offsetsLink = infoAt + offsetof(PrmEntryInfo, itemOffsets);
        const uint64_t offsetsAt = bytes.Read32(offsetsLink);
        if (count > bytes.Size() / 4) {
            bytes.Error(infoAt, std::to_string(count) + " items can't fit in a file of this size");
            return;
        }
        if (kind.form != Form::kList && count != 1) {
            bytes.Error(infoAt,
                        std::string(kind.label) + " must have one record, not " + std::to_string(count));
            return;
        }
        if (count > 0 && !bytes.Claim(offsetsAt, 4 * count, offsetsLink, "the item offset array"))
            return;
        std::map<uint64_t, size_t> positions; // of the records, by offset
        for (uint64_t i = 0; i < count; ++i) {
            const uint64_t linkAt = offsetsAt + 4 * i;
            const uint64_t at = bytes.Read32(linkAt);
            if (bytes.Claim(at, kind.size, linkAt, "item " + std::to_string(i))) {
                positions[at] = entry.records.size();
                entry.records.push_back(ParseRecord(*entry.row, at));
            }
        }
        CheckChain(entryAt, kind, offsetsAt, count);
        ParseDefault(infoAt + offsetof(PrmEntryInfo, defaultRecord), entry, positions);
    }

    // The chain must have the items in the order of the offset array.
    void CheckChain(uint64_t entryAt, const Kind& kind, uint64_t offsetsAt, uint64_t count) {
        uint64_t linkAt = entryAt + offsetof(PrmEntry, firstItem);
        for (uint64_t i = 0; i < count && kind.chain != 0; ++i) {
            const uint64_t at = bytes.Read32(offsetsAt + 4 * i);
            if (bytes.Read32(linkAt) != at) {
                bytes.Error(linkAt, "the item chain leads to " + Hex(bytes.Read32(linkAt)) + ", item "
                                        + std::to_string(i) + " is at " + Hex(at));
                return;
            }
            linkAt = at + kind.chain;
            if (linkAt + 4 > bytes.Size())
                return; // already reported with the item
        }
        bytes.NoteLoss(linkAt, 4);
    }

    void ParseDefault(uint64_t linkAt, Entry& entry, const std::map<uint64_t, size_t>& positions) {
        const Kind& kind = *entry.row->kind;
        const uint64_t at = bytes.Read32(linkAt);
        if (at == 0)
            return;
        const auto own = positions.find(at);
        if (own != positions.end() && kind.HasKeys()) {
            entry.defaultItem = own->second;
        } else if (!kind.HasKeys()) {
            bytes.NoteLoss(linkAt, 4);
        } else if (bytes.Claim(at, kind.size, linkAt, "the default record")) {
            const std::string key = ItemLabel(ParseRecord(*entry.row, at));
            for (size_t i = 0; i < entry.records.size(); ++i) {
                if (EqualNoCase(ItemLabel(entry.records[i]), key))
                    entry.defaultItem = i;
            }
            if (entry.defaultItem)
                findings.Warning(AtOffset(at),
                                 Quote(entry.name)
                                     + ": the default is a separate record; only its key is kept");
            else
                bytes.Error(linkAt, "the default record's key " + Quote(key) + " is not the key of any item");
        }
    }

    Record ParseRecord(const EntryRow& row, uint64_t at) {
        const Kind& kind = *row.kind;
        Record record{AtOffset(at), std::vector<Value>(kind.fields.count)};
        std::vector<bool> used(kind.size);
        const auto use = [&](size_t offset, size_t count) {
            std::fill_n(used.begin() + static_cast<ptrdiff_t>(offset), count, true);
        };
        if (kind.chain != 0)
            use(kind.chain, 4);
        for (size_t i = 0; i < kind.fields.count; ++i) {
            const Field& field = kind.fields[i];
            Value& value = record.values[i];
            ParseField(row, field, at, value);
            if (field.type == FieldType::kText)
                use(field.offset, field.count); // ReadField has noted any loss
            else if (value.given || field.type != FieldType::kNumbers)
                use(field.offset, field.type == FieldType::kNumbers ? field.width * field.count : 4);
            if (field.link != 0 && (field.type == FieldType::kPairs || bytes.Read32(at + field.link) == 1))
                use(field.link, 4);
        }
        for (size_t i = 0; i < kind.size; ++i) {
            if (!used[i])
                bytes.NoteLoss(at + i, 1);
        }
        return record;
    }

    void ParseField(const EntryRow& row, const Field& field, uint64_t record, Value& value) {
        const uint64_t at = record + field.offset;
        value.place = AtOffset(at);
        switch (field.type) {
        case FieldType::kKey:
            ParseText(bytes.ReadKey(at), value);
            break;
        case FieldType::kName:
            if (field.required || bytes.Read32(at) != 0)
                ParseText(bytes.ReadName(at), value);
            break;
        case FieldType::kText:
            value.text = bytes.ReadField(at, field.count);
            value.given = true;
            break;
        case FieldType::kNumbers:
            value.given = field.link == 0 || bytes.Read32(record + field.link) != 0;
            for (size_t i = 0; value.given && i < field.count; ++i)
                value.numbers.push_back(ParseNumber(row, field, at + field.width * i));
            break;
        case FieldType::kPairs:
            ParsePairs(field, at, record + field.link, value);
            break;
        }
    }

    // Signed where the entry allows negative numbers.
    int64_t ParseNumber(const EntryRow& row, const Field& field, uint64_t at) {
        const uint32_t number = bytes.Read(at, field.width);
        return LimitsOf(row, field).least < 0 ? int64_t{static_cast<int32_t>(number)} : int64_t{number};
    }

    static void ParseText(std::optional<std::string> text, Value& value) {
        value.given = text.has_value();
        value.text = std::move(text).value_or("");
    }

    void ParsePairs(const Field& field, uint64_t countAt, uint64_t linkAt, Value& value) {
        const uint64_t count = bytes.Read32(countAt);
        const uint64_t first = bytes.Read32(linkAt);
        const uint64_t size = 2 * field.count;
        value.given = true;
        if (count == 0
            || !bytes.Claim(first, count * size, linkAt, "the block of " + std::to_string(count) + " rows"))
            return;
        for (uint64_t at = first; at < first + count * size; at += size) {
            const uint64_t valueAt = at + field.count;
            std::string name = bytes.ReadField(at, field.count);
            std::string text = bytes.ReadField(valueAt, field.count);
            value.pairs.push_back({std::move(name), std::move(text), AtOffset(at), AtOffset(valueAt)});
        }
    }

    PrmBytes bytes;
    Findings& findings;
};

} // namespace

Model ParsePrm(std::string_view bytes, Findings& findings) {
    return Parser(bytes, findings).Parse();
}
