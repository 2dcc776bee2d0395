// Writes the binary file. Blocks are appended in file order; an offset is filled in when its target is
// appended.
#include "prmc/forms/prm_writer.h"

#include "common/text.h"
#include "paramdata/prm_layout.h"

#include <algorithm>
#include <string>

namespace {

// A text or a block of pairs that is appended later, and the position of its offset.
struct Pending {
    size_t offsetAt;
    const Field* field;
    const Value* value;
};

struct Image {
    std::vector<uint8_t> bytes;
    std::vector<Pending> pending; // of the current entry
};

void Put(Image& image, size_t at, size_t width, uint64_t number) {
    for (size_t i = 0; i < width; ++i)
        image.bytes[at + i] = static_cast<uint8_t>(number >> (8 * i));
}

void Put32(Image& image, size_t at, uint64_t number) {
    Put(image, at, 4, number);
}

void PutText(Image& image, size_t at, const std::string& text) {
    std::copy(text.begin(), text.end(), image.bytes.begin() + static_cast<ptrdiff_t>(at));
}

// Appends zeros; returns where they start.
size_t Append(Image& image, size_t count) {
    const size_t at = image.bytes.size();
    image.bytes.resize(at + count);
    return at;
}

void Align(Image& image, size_t to) {
    image.bytes.resize((image.bytes.size() + to - 1) / to * to);
}

void WriteField(Image& image, size_t record, const Field& field, const Value& value) {
    const size_t at = record + field.offset;
    switch (field.type) {
    case FieldType::kKey:
    case FieldType::kName:
        image.pending.push_back({at, &field, &value});
        break;
    case FieldType::kText:
        PutText(image, at, value.text);
        break;
    case FieldType::kNumbers:
        for (size_t i = 0; i < value.numbers.size(); ++i)
            Put(image, at + field.width * i, field.width, static_cast<uint64_t>(value.numbers[i]));
        if (field.link != 0)
            Put32(image, record + field.link, 1);
        break;
    case FieldType::kPairs:
        Put32(image, at, value.pairs.size());
        image.pending.push_back({record + field.link, &field, &value});
        break;
    }
}

void WriteRecord(Image& image, size_t at, const Kind& kind, const Record& record) {
    for (size_t i = 0; i < kind.fields.count; ++i) {
        if (record.values[i].given)
            WriteField(image, at, kind.fields[i], record.values[i]);
    }
}

void AppendPending(Image& image, const Pending& pending) {
    const Value& value = *pending.value;
    Put32(image, pending.offsetAt, image.bytes.size());
    if (pending.field->type == FieldType::kPairs) {
        for (const Pair& pair : value.pairs) {
            const size_t at = Append(image, 2 * pending.field->count);
            PutText(image, at, pair.name);
            PutText(image, at + pending.field->count, pair.value);
        }
    } else if (pending.field->type == FieldType::kKey) {
        PutText(image, Append(image, value.text.size() + 1), value.text);
    } else {
        for (const char16_t unit : Utf16FromUtf8(value.text) + u'\0') {
            image.bytes.push_back(static_cast<uint8_t>(unit & 0xFF));
            image.bytes.push_back(static_cast<uint8_t>(unit >> 8));
        }
    }
}

// What the records refer to: pairs first, then keys, then display names.
void AppendAllPending(Image& image) {
    for (const FieldType type : {FieldType::kPairs, FieldType::kKey, FieldType::kName}) {
        for (const Pending& pending : image.pending) {
            if (pending.field->type == type)
                AppendPending(image, pending);
        }
        Align(image, 2);
    }
    Align(image, 4);
    image.pending.clear();
}

void WriteItems(Image& image, size_t entryAt, const Entry& entry) {
    const Kind& kind = *entry.row->kind;
    const size_t count = entry.records.size();
    const size_t infoAt = entryAt + sizeof(PrmEntry);
    const size_t offsets = Append(image, 4 * count);
    const size_t records = Append(image, kind.size * count);
    Put32(image, infoAt + offsetof(PrmEntryInfo, itemCount), count);
    Put32(image, infoAt + offsetof(PrmEntryInfo, itemOffsets), offsets);
    if (entry.defaultItem)
        Put32(image, infoAt + offsetof(PrmEntryInfo, defaultRecord),
              records + kind.size * *entry.defaultItem);
    if (kind.chain != 0 && count > 0)
        Put32(image, entryAt + offsetof(PrmEntry, firstItem), records);
    for (size_t i = 0; i < count; ++i) {
        const size_t at = records + kind.size * i;
        Put32(image, offsets + 4 * i, at);
        WriteRecord(image, at, kind, entry.records[i]);
        if (kind.chain != 0 && i + 1 < count)
            Put32(image, at + kind.chain, at + kind.size);
    }
}

void WriteEntry(Image& image, const Entry& entry) {
    const Kind& kind = *entry.row->kind;
    const size_t at = Append(image, sizeof(PrmEntry) + sizeof(PrmEntryInfo));
    PutText(image, at, entry.name);
    if (kind.form == Form::kRange)
        WriteRecord(image, Append(image, kind.size), kind, entry.records.front());
    else
        WriteItems(image, at, entry);
    AppendAllPending(image);
    Put32(image, at + offsetof(PrmEntry, next), image.bytes.size());
}

} // namespace

std::vector<uint8_t> WritePrm(const Model& model) {
    Image image;
    Append(image, sizeof(PrmHeader));
    for (const Entry& entry : model.entries)
        WriteEntry(image, entry);
    Put32(image, offsetof(PrmHeader, chainEnd), image.bytes.size());
    return image.bytes;
}
