// The reference of the entries: its examples are models without errors.
#include "engine_support.h"

#include "prmc/reference/entry_parts.h"
#include "prmc/reference/reference.h"

#include <gtest/gtest.h>

namespace {

TEST(Reference, EveryExampleIsAModelOfItsEntryAlone) {
    for (const EntryRow& row : KnownEntries()) {
        Lines messages;
        const Model model = FromYaml(ExampleOf(row), messages);
        EXPECT_EQ(messages, Lines{}) << ExampleOf(row);
        ASSERT_EQ(model.entries.size(), 1u) << row.name;
        EXPECT_EQ(model.entries[0].row, &row);
    }
}

// A description without its full stop is cut off or missing.
TEST(Reference, EverythingIsDescribedInSentences) {
    const auto isSentence = [](const std::string& text) { return text.size() > 1 && text.back() == '.'; };
    for (const EntryRow& row : KnownEntries()) {
        EXPECT_TRUE(isSentence(SummaryOf(row)) && isSentence(row.use) && isSentence(row.absence)) << row.name;
        for (const Field& field : row.kind->fields)
            EXPECT_TRUE(isSentence(field.meaning)) << row.kind->label << ": " << field.name;
        EXPECT_TRUE(row.keys.count == 0 || row.specialKeys.count == 0) << row.name;
    }
}

// Every key, row and field is in both forms that describe an entry in full.
TEST(Reference, NothingThatTheDriverKnowsIsMissing) {
    for (const EntryRow& row : KnownEntries()) {
        std::vector<std::string> names = Texts(row.keys);
        for (const char* key : row.specialKeys)
            names.push_back(key);
        for (const TableRow& tableRow : TableRowsOf(row))
            names.push_back(tableRow.name);
        if (row.kind->form != Form::kTable)
            for (const Field& field : row.kind->fields)
                names.push_back(field.name);
        for (const std::string& name : names) {
            EXPECT_NE(FullReference({&row}).find(name), std::string::npos) << row.name << ": " << name;
            EXPECT_NE(JsonReference({&row}).find('"' + name + '"'), std::string::npos) << row.name << ": " << name;
        }
    }
}

} // namespace
