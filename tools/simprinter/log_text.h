// Requests and answers as one-line texts for the log.
#ifndef SIMPRINTER_LOG_TEXT_H
#define SIMPRINTER_LOG_TEXT_H

#include "simprinter/message.h"

// Quoted; what is no printable ASCII is escaped. Long texts are cut.
std::string PrintableText(const std::string& octets);

// "#17 GetRequest .1.3.6.1.2.1.1.5.0 .1.3..."
std::string RequestText(const Message& request);

// "INTEGER 640, OCTET STRING 'x'", with the objects' names where the request gave others; or the error.
std::string ReplyText(const Message& reply);

#endif
