// The texts and exit codes of the outcomes.
#include "workbench/lib/printer_outcomes.h"

#include "workbench/lib/localized_text.h"
#include "workbench/lib/printer_text_ids.h"

#include <windows.h>

namespace {

struct OutcomeRow {
    Outcome outcome;
    int exitCode;
    UINT sentence; // {1}: the address, {2}: the detail
    UINT advice;
};
constexpr OutcomeRow kOutcomes[] = {
    {Outcome::kNoAddress, kExitUsage, PRINTER_TEXT_NO_ADDRESS, PRINTER_TEXT_NO_ADDRESS_DO},
    {Outcome::kUnfitAddress, kExitUsage, PRINTER_TEXT_UNFIT_ADDRESS, PRINTER_TEXT_USE_IPV4_DO},
    {Outcome::kBadAddress, kExitUsage, PRINTER_TEXT_BAD_ADDRESS, PRINTER_TEXT_BAD_ADDRESS_DO},
    {Outcome::kIpv6Address, kExitUsage, PRINTER_TEXT_IPV6_ADDRESS, PRINTER_TEXT_USE_IPV4_DO},
    {Outcome::kUnknownHost, kExitFailed, PRINTER_TEXT_UNKNOWN_HOST, PRINTER_TEXT_UNKNOWN_HOST_DO},
    {Outcome::kNoNameService, kExitFailed, PRINTER_TEXT_NO_NAME_SERVICE, PRINTER_TEXT_NO_NAME_SERVICE_DO},
    {Outcome::kNoLibrary, kExitFailed, PRINTER_TEXT_NO_LIBRARY, PRINTER_TEXT_NO_LIBRARY_DO},
    {Outcome::kNotSent, kExitFailed, PRINTER_TEXT_NOT_SENT, PRINTER_TEXT_NOT_SENT_DO},
    {Outcome::kRefused, kExitFailed, PRINTER_TEXT_REFUSED, PRINTER_TEXT_REFUSED_DO},
    {Outcome::kNoAnswer, kExitFailed, PRINTER_TEXT_NO_ANSWER, PRINTER_TEXT_NO_ANSWER_DO},
    {Outcome::kInterrupted, kExitFailed, PRINTER_TEXT_INTERRUPTED, PRINTER_TEXT_TRY_AGAIN_DO},
    {Outcome::kSlow, kExitFailed, PRINTER_TEXT_SLOW, PRINTER_TEXT_SLOW_DO},
    {Outcome::kOtherRequests, kExitFailed, PRINTER_TEXT_OTHER_REQUESTS, PRINTER_TEXT_TRY_AGAIN_DO},
    {Outcome::kMalformedAnswer, kExitFailed, PRINTER_TEXT_MALFORMED_ANSWER, PRINTER_TEXT_MALFORMED_ANSWER_DO},
    {Outcome::kErrorStatus, kExitFailed, PRINTER_TEXT_ERROR_STATUS, PRINTER_TEXT_ERROR_STATUS_DO},
    {Outcome::kNotAPrinter, kExitFailed, PRINTER_TEXT_NOT_A_PRINTER, PRINTER_TEXT_NOT_A_PRINTER_DO},
    {Outcome::kOtherNumber, kExitFailed, PRINTER_TEXT_OTHER_NUMBER, PRINTER_TEXT_OTHER_NUMBER_DO},
    {Outcome::kOtherModel, kExitFailed, PRINTER_TEXT_OTHER_MODEL, PRINTER_TEXT_OTHER_MODEL_DO},
};

const OutcomeRow& RowOf(Outcome outcome) {
    for (const OutcomeRow& row : kOutcomes)
        if (row.outcome == outcome)
            return row;
    throw Failure(kExitFailed, "an outcome of a query has no text"); // never: a test asks for all
}

} // namespace

PrinterFailure::PrinterFailure(Outcome end, const std::string& address, const std::string& detail)
    : Failure(RowOf(end).exitCode, TextIn(kEnglish, RowOf(end).sentence, {address, detail}) + " "
                                       + TextIn(kEnglish, RowOf(end).advice, {address, detail})),
      outcome(end), sentence(LocalizedText(RowOf(end).sentence, {address, detail}) + " "
                             + LocalizedText(RowOf(end).advice, {address, detail})) {}
