// The two queries of the bidirectional path as a test asks them, with records laid out octet by octet, each
// in full: the answer in words, or "refused" with every record as it was.
#ifndef DEVCOMM_BDC_QUESTIONS_H
#define DEVCOMM_BDC_QUESTIONS_H

#include "support/raw_bytes.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

const std::string kUnknownTray =
    "MediaTypeList_Size_Unknown MediaTypeList_Orient_Unknown MediaTypeList_Type_Unknown "
    "MediaTypeList_Weight_Unknown MediaTypeList_Color_Unknown MediaTypeList_Hole_Unknown 0";

// The text of a 32-octet field whose rest is zero.
inline std::string FieldAt(const RawBytes& record, size_t offset) {
    const uint8_t* field = &record.bytes.at(offset + 31) - 31;
    const std::string text(reinterpret_cast<const char*>(field), 31);
    const std::string kept = text.substr(0, text.find('\0'));
    EXPECT_EQ(Differences(field, RawBytes(32).Text(0, kept)), "");
    return kept;
}

// `ask` is DDProc_OptionRequest or DDProc_InputTrayStatus, to be called for one record of this size.
template <typename Ask>
bool AskOne(const Ask& ask, const char* agent, const std::string& key, RawBytes& record) {
    const std::string field = key.size() < 32 ? key + '\0' : key;
    record.U8(0, 0xAB, record.bytes.size()).Text(0, field);
    const RawBytes before = record;
    const BOOL result = ask(agent, 1, record.bytes.data());
    EXPECT_EQ(memcmp(record.bytes.data(), before.bytes.data(), 32), 0) << "the key is the caller's";
    if (result == FALSE) {
        EXPECT_EQ(Differences(record.bytes.data(), before), "");
    }
    return result != FALSE;
}

template <typename Ask>
std::string AskOption(const Ask& ask, const std::string& key, const char* agent) {
    RawBytes record(64);
    return AskOne(ask, agent, key, record) ? FieldAt(record, 32) : "refused";
}

// "size orientation type weight color hole level".
template <typename Ask>
std::string AskTray(const Ask& ask, const std::string& key, const char* agent) {
    RawBytes record(228);
    if (!AskOne(ask, agent, key, record))
        return "refused";
    std::string answer;
    for (size_t offset = 32; offset < 224; offset += 32)
        answer += FieldAt(record, offset) + " ";
    return answer + std::to_string(NumberAt<uint32_t>(record.bytes.data(), 224));
}

#endif
