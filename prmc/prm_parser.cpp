// The binary file's reader, see prm_parser.h. Every block is claimed before it is read: it must lie inside
// the file and on no other block, so no byte is read as two things and no loop can run for ever. Offsets are
// 64-bit here.
#include "prmc/prm_parser.h"

#include "paramdata/prm_layout.h"
#include "prmc/text.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <utility>

namespace {

std::string Hex(uint64_t number) {
    char text[24];
    std::snprintf(text, sizeof text, "0x%llX", static_cast<unsigned long long>(number));
    return text;
}

class Parser {
public:
    Parser(std::string_view file, Findings& where) : bytes(file), findings(where) {}

    Model Parse() {
        Model model;
        if (!Claim(0, sizeof(PrmHeader), 0, "the header"))
            return model;
        if (Read32(0) != 0)
            findings.Note({}, "the header's first word is not 0 and is lost");
        const uint64_t chainEnd = Read32(offsetof(PrmHeader, chainEnd));
        if (chainEnd > bytes.size())
            Fault(offsetof(PrmHeader, chainEnd), "the chain end " + Hex(chainEnd) + " lies outside the file");
        if (chainEnd <= kPrmFirstEntry)
            Fault(offsetof(PrmHeader, chainEnd), "the file holds no entries");
        std::set<uint64_t> seen;
        uint64_t linkAt = offsetof(PrmHeader, chainEnd);
        for (uint64_t at = kPrmFirstEntry; at < chainEnd; at = Read32(linkAt)) {
            if (!seen.insert(at).second) {
                Fault(linkAt, "the entry chain leads back to " + Hex(at));
                break;
            }
            if (!Claim(at, sizeof(PrmEntry) + sizeof(PrmEntryInfo), linkAt, "the next entry"))
                break;
            ParseEntry(at, model);
            linkAt = at + offsetof(PrmEntry, next);
        }
        CheckTexts();
        return model;
    }

private:
    void Fault(uint64_t at, const std::string& message) {
        findings.Error(AtOffset(at), entryName.empty() ? message : Quote(entryName) + ": " + message);
    }

    uint32_t Read32(uint64_t at) const {
        uint32_t number = 0;
        for (size_t i = 0; i < 4; ++i)
            number |= static_cast<uint32_t>(static_cast<uint8_t>(bytes[at + i])) << (8 * i);
        return number;
    }

    // The model has no place for these bytes: they are lost unless they are 0.
    void NoteLoss(std::string_view unread) {
        isLossy = isLossy || unread.find_first_not_of('\0') != std::string_view::npos;
    }

    bool OverlapsBlock(uint64_t start, uint64_t end) const {
        const auto after = blocks.lower_bound(end);
        return after != blocks.begin() && std::prev(after)->second > start;
    }

    // Takes a block for one purpose. `linkAt` is where its offset stands, for the message.
    bool Claim(uint64_t start, uint64_t size, uint64_t linkAt, const std::string& what) {
        const uint64_t end = start + size;
        if (end > bytes.size()) {
            Fault(linkAt, what + " at " + Hex(start) + " reaches outside the file");
            return false;
        }
        if (OverlapsBlock(start, end)) {
            Fault(linkAt, what + " at " + Hex(start) + " overlaps another block");
            return false;
        }
        if (size > 0)
            blocks[start] = end;
        return true;
    }

    void ParseEntry(uint64_t at, Model& model) {
        isLossy = false;
        const std::string name = ReadFixedText(at, sizeof(PrmEntry::name));
        entryName = name;
        const EntryRow* row = FindEntryRow(name);
        if (!row) {
            findings.Note(AtOffset(at), "unknown entry " + Quote(name) + " is left out");
            entryName.clear();
            return;
        }
        NoteLoss(bytes.substr(at + offsetof(PrmEntry, unread), sizeof(PrmEntry::unread)));
        Entry entry{row, name, AtOffset(at), {}, {}};
        if (row->kind->form == Form::kRange)
            ParseRange(at, entry);
        else
            ParseItems(at, entry);
        if (isLossy)
            findings.Note(AtOffset(at), Quote(name) + ": bytes that no reader reads are not 0 and are lost");
        if (row->kind->form == Form::kList || !entry.records.empty())
            model.entries.push_back(std::move(entry));
        entryName.clear();
    }

    void ParseRange(uint64_t entryAt, Entry& entry) {
        const uint64_t at = entryAt + sizeof(PrmEntry) + sizeof(PrmEntryInfo);
        NoteLoss(bytes.substr(entryAt + offsetof(PrmEntry, firstItem), sizeof(PrmEntry::firstItem)));
        NoteLoss(bytes.substr(entryAt + sizeof(PrmEntry), sizeof(PrmEntryInfo)));
        if (Claim(at, sizeof(PrmRange), entryAt, "the numeric block"))
            entry.records.push_back(ParseRecord(*entry.row->kind, at));
    }

    void ParseItems(uint64_t entryAt, Entry& entry) {
        const Kind& kind = *entry.row->kind;
        const uint64_t infoAt = entryAt + sizeof(PrmEntry);
        const uint64_t count = Read32(infoAt + offsetof(PrmEntryInfo, itemCount));
        const uint64_t offsetsLink = infoAt + offsetof(PrmEntryInfo, itemOffsets);
        const uint64_t offsetsAt = Read32(offsetsLink);
        if (count > bytes.size() / 4) {
            Fault(infoAt, std::to_string(count) + " items can't be in a file of this size");
            return;
        }
        if (kind.form != Form::kList && count != 1) {
            Fault(infoAt, std::string(kind.label) + " has one record, not " + std::to_string(count));
            return;
        }
        if (count > 0 && !Claim(offsetsAt, 4 * count, offsetsLink, "the item offset array"))
            return;
        std::map<uint64_t, size_t> positions; // of the records, by offset
        for (uint64_t i = 0; i < count; ++i) {
            const uint64_t linkAt = offsetsAt + 4 * i;
            const uint64_t at = Read32(linkAt);
            if (Claim(at, kind.size, linkAt, "item " + std::to_string(i))) {
                positions[at] = entry.records.size();
                entry.records.push_back(ParseRecord(kind, at));
            }
        }
        CheckChain(entryAt, kind, offsetsAt, count);
        ParseDefault(infoAt + offsetof(PrmEntryInfo, defaultRecord), entry, positions);
    }

    // Chained items follow one another as the offset array has them.
    void CheckChain(uint64_t entryAt, const Kind& kind, uint64_t offsetsAt, uint64_t count) {
        uint64_t linkAt = entryAt + offsetof(PrmEntry, firstItem);
        for (uint64_t i = 0; i < count && kind.chain != 0; ++i) {
            const uint64_t at = Read32(offsetsAt + 4 * i);
            if (Read32(linkAt) != at) {
                Fault(linkAt, "the item chain leads to " + Hex(Read32(linkAt)) + ", item " + std::to_string(i)
                                  + " is at " + Hex(at));
                return;
            }
            linkAt = at + kind.chain;
            if (linkAt + 4 > bytes.size())
                return; // reported with the item
        }
        NoteLoss(bytes.substr(linkAt, 4));
    }

    void ParseDefault(uint64_t linkAt, Entry& entry, const std::map<uint64_t, size_t>& positions) {
        const Kind& kind = *entry.row->kind;
        const uint64_t at = Read32(linkAt);
        if (at == 0)
            return;
        const auto own = positions.find(at);
        if (own != positions.end() && kind.HasKeys()) {
            entry.defaultItem = own->second;
        } else if (!kind.HasKeys()) {
            isLossy = true;
        } else if (Claim(at, kind.size, linkAt, "the default record")) {
            const std::string key = ItemLabel(ParseRecord(kind, at));
            for (size_t i = 0; i < entry.records.size(); ++i) {
                if (EqualNoCase(ItemLabel(entry.records[i]), key))
                    entry.defaultItem = i;
            }
            if (entry.defaultItem)
                findings.Note(AtOffset(at),
                              Quote(entryName)
                                  + ": the default is a record of its own; only its key is kept");
            else
                Fault(linkAt, "the default record's key " + Quote(key) + " names no item");
        }
    }

    Record ParseRecord(const Kind& kind, uint64_t at) {
        Record record{AtOffset(at), std::vector<Value>(kind.fields.size())};
        std::vector<bool> used(kind.size);
        const auto use = [&](size_t offset, size_t count) {
            std::fill_n(used.begin() + static_cast<ptrdiff_t>(offset), count, true);
        };
        if (kind.chain != 0)
            use(kind.chain, 4);
        for (size_t i = 0; i < kind.fields.size(); ++i) {
            const Field& field = kind.fields[i];
            Value& value = record.values[i];
            ParseField(field, at, value);
            if (field.type == FieldType::kText)
                use(field.offset, field.count); // looked at while it was read
            else if (value.given || field.type != FieldType::kNumbers)
                use(field.offset, field.type == FieldType::kNumbers ? 4 * field.count : 4);
            if (field.link != 0 && (field.type == FieldType::kPairs || Read32(at + field.link) == 1))
                use(field.link, 4);
        }
        for (size_t i = 0; i < kind.size; ++i) {
            if (!used[i])
                NoteLoss(bytes.substr(at + i, 1));
        }
        return record;
    }

    void ParseField(const Field& field, uint64_t record, Value& value) {
        const uint64_t at = record + field.offset;
        value.place = AtOffset(at);
        switch (field.type) {
        case FieldType::kKey:
            ParseKey(at, value);
            break;
        case FieldType::kName:
            ParseName(at, value);
            break;
        case FieldType::kText:
            value.text = ReadFixedText(at, field.count);
            value.given = true;
            break;
        case FieldType::kNumbers:
            value.given = field.link == 0 || Read32(record + field.link) != 0;
            for (size_t i = 0; value.given && i < field.count; ++i)
                value.numbers.push_back(Read32(at + 4 * i));
            break;
        case FieldType::kPairs:
            ParsePairs(field, at, record + field.link, value);
            break;
        }
    }

    // Text inside a block.
    std::string ReadFixedText(uint64_t at, size_t size) {
        const std::string_view field = bytes.substr(at, size);
        const size_t length = std::min(field.find('\0'), size);
        if (length == size)
            Fault(at, "the text " + Quote(Utf8FromBytes(field)) + " has no terminator");
        NoteLoss(field.substr(length));
        return Utf8FromBytes(field.substr(0, length));
    }

    // False, with a fault, when no text can be at the offset that stands at `linkAt`.
    bool CheckTextOffset(uint64_t linkAt, const char* what) {
        const uint64_t at = Read32(linkAt);
        if (at == 0)
            Fault(linkAt, std::string("the ") + what + " is missing");
        else if (at >= bytes.size())
            Fault(linkAt, std::string("the ") + what + " at " + Hex(at) + " lies outside the file");
        else
            return true;
        return false;
    }

    void ParseKey(uint64_t linkAt, Value& value) {
        if (!CheckTextOffset(linkAt, "key"))
            return;
        const uint64_t at = Read32(linkAt);
        const std::string_view text = bytes.substr(at, kPrmMostTextBytes + 1);
        const size_t length = text.find('\0');
        if (length == std::string_view::npos) {
            Fault(linkAt, "the key at " + Hex(at) + " has no terminator");
            return;
        }
        texts.push_back({at, at + length + 1, linkAt, entryName});
        value.text = Utf8FromBytes(text.substr(0, length));
        value.given = true;
    }

    void ParseName(uint64_t linkAt, Value& value) {
        if (!CheckTextOffset(linkAt, "display name"))
            return;
        const uint64_t at = Read32(linkAt);
        std::u16string text;
        for (uint64_t unitAt = at;; unitAt += 2) {
            if (unitAt + 2 > bytes.size() || text.size() > kPrmMostTextChars) {
                Fault(linkAt, "the display name at " + Hex(at) + " has no terminator");
                return;
            }
            const auto unit = static_cast<char16_t>(static_cast<uint8_t>(bytes[unitAt])
                                                    | static_cast<uint8_t>(bytes[unitAt + 1]) << 8);
            if (unit == 0)
                break;
            text.push_back(unit);
        }
        texts.push_back({at, at + 2 * text.size() + 2, linkAt, entryName});
        bool isWellFormed;
        value.text = Utf8FromUtf16(text, isWellFormed);
        value.given = true;
        if (!isWellFormed)
            Fault(linkAt, "the display name at " + Hex(at) + " is not well-formed UTF-16");
    }

    void ParsePairs(const Field& field, uint64_t countAt, uint64_t linkAt, Value& value) {
        const uint64_t count = Read32(countAt);
        const uint64_t first = Read32(linkAt);
        const uint64_t size = 2 * field.count;
        value.given = true;
        if (count == 0
            || !Claim(first, count * size, linkAt, "the block of " + std::to_string(count) + " rows"))
            return;
        for (uint64_t at = first; at < first + count * size; at += size) {
            const uint64_t valueAt = at + field.count;
            std::string name = ReadFixedText(at, field.count);
            std::string text = ReadFixedText(valueAt, field.count);
            value.pairs.push_back({std::move(name), std::move(text), AtOffset(at), AtOffset(valueAt)});
        }
    }

    // Texts may share bytes with one another, but not with blocks.
    void CheckTexts() {
        for (const Text& text : texts) {
            entryName = text.entry;
            if (OverlapsBlock(text.start, text.end))
                Fault(text.linkAt, "the text at " + Hex(text.start) + " overlaps a block");
        }
    }

    struct Text {
        uint64_t start;
        uint64_t end;
        uint64_t linkAt;
        std::string entry;
    };

    std::string_view bytes;
    Findings& findings;
    std::map<uint64_t, uint64_t> blocks; // start to end, disjoint
    std::vector<Text> texts;
    std::string entryName; // that is being read, for messages
    bool isLossy = false;  // the entry has contents that the model can't hold
};

} // namespace

Model ParsePrm(std::string_view bytes, Findings& findings) {
    return Parser(bytes, findings).Parse();
}
