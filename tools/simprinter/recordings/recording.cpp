// Finds out encoding and format of a recording, and has it read.
#include "simprinter/recordings/recording.h"

#include "common/encoding.h"
#include "common/text.h"
#include "simprinter/recordings/formats.h"

#include <algorithm>

namespace {

// The text in UTF-8 of a file in UTF-16, as editors and redirected output of Windows make it.
std::string TextOfUtf16(std::string_view text, Findings& findings) {
    const bool isBigEndian = text.front() == '\xFE' || text.front() == '\0';
    std::u16string units;
    for (size_t i = 0; i + 1 < text.size(); i += 2) {
        const auto byte = [&](size_t at) { return static_cast<uint8_t>(text[at]); };
        units.push_back(
            static_cast<char16_t>(isBigEndian ? byte(i) << 8 | byte(i + 1) : byte(i + 1) << 8 | byte(i)));
    }
    if (!units.empty() && units.front() == u'\xFEFF')
        units.erase(0, 1);
    bool isWellFormed = false;
    const std::string utf8 = Utf8FromUtf16(units, isWellFormed);
    if (!isWellFormed || text.size() % 2 != 0)
        findings.Warning(AtLine(1), "this file is damaged UTF-16: some characters are lost");
    return utf8;
}

// Without a mark and in UTF-8 or an encoding that has ASCII in the same bytes.
std::string PlainText(const std::string& text, Findings& findings) {
    switch (EncodingOf(text)) {
    case Encoding::kBytes:
        break;
    case Encoding::kUtf16:
        return TextOfUtf16(text, findings);
    case Encoding::kUtf32:
    case Encoding::kNotText:
    case Encoding::kCompressed:
        findings.Error(AtLine(1), TextFileFault(text));
        return "";
    }
    return std::string(WithoutUtf8Mark(text));
}

constexpr const char* kSavedMail = "this is a saved mail with encoded text: save its attachment, or copy the "
                                   "text from the mail program";

// The header line of a mail, or of a part of one, whose text is encoded.
bool IsEncodingHeader(std::string_view line) {
    constexpr std::string_view kHeader = "Content-Transfer-Encoding: ";
    line = WithoutCr(line);
    const std::string_view encoding = line.substr(std::min(kHeader.size(), line.size()));
    return EqualNoCase(line.substr(0, kHeader.size()), kHeader)
           && (EqualNoCase(encoding, "quoted-printable") || EqualNoCase(encoding, "base64"));
}

void ReportNoObject(const Lines& lines, Findings& findings) {
    if (FindWalkLine(lines) != lines.size() || FindSnmprecLine(lines) != lines.size())
        return findings.Error(AtLine(1), "no object is left: none has a value that can be read");
    const std::string expected =
        "no recorded object: expected 'NAME = TYPE: VALUE' as snmpwalk prints it, or "
        "'1.3.6...|TAG|VALUE'";
    if (const Place place = FindObjectBehindOther(lines); place.line != 0)
        return findings.Error(place, expected + "; one seems to begin here: remove what is in front of it, "
                                         + Quote(lines[place.line - 1].substr(0, place.column - 1)));
    const auto first = std::find_if(lines.begin(), lines.end(), [](std::string_view line) {
        return line.find_first_not_of(" \t\r") != std::string_view::npos;
    });
    if (first == lines.end())
        return findings.Error(AtLine(1), expected + "; the file is empty");
    findings.Error(AtLine(static_cast<uint64_t>(first - lines.begin()) + 1),
                   expected + ", not " + Quote(WithoutCr(*first)));
}

} // namespace

ObjectMap ReadRecording(const std::string& text, Findings& findings) {
    std::string plain = PlainText(text, findings);
    Lines lines = SplitLines(plain);
    const bool isSnmprec = FindSnmprecLine(lines) < FindWalkLine(lines);
    if (!isSnmprec) { // perhaps from a mail
        plain = WithoutNoBreakSpaces(plain);
        lines = SplitLines(plain);
        if (const size_t mail = FindSavedMailLine(lines); mail != lines.size())
            findings.Error(AtLine(mail + 1), kSavedMail);
    }
    if (findings.HasErrors())
        return {};
    Recording recording(findings);
    (isSnmprec ? ReadSnmprec : ReadWalk)(lines, recording);
    recording.CountUnlistedWarnings();
    if (const auto header = std::find_if(lines.begin(), lines.end(), IsEncodingHeader); header != lines.end())
        findings.list.push_back({AtLine(static_cast<uint64_t>(header - lines.begin()) + 1),
                                 recording.objects.empty() ? Severity::kError : Severity::kWarning,
                                 kSavedMail});
    else if (recording.objects.empty())
        ReportNoObject(lines, findings);
    return recording.objects;
}
