// Requests and answers as single lines for the log.
#ifndef SIMPRINTER_LOG_TEXT_H
#define SIMPRINTER_LOG_TEXT_H

#include "simprinter/snmp/message.h"

// Quoted; anything but printable ASCII is escaped. Long texts are cut.
std::string PrintableText(const std::string& bytes);

// "SNMPv1 #17 GetRequest .1.3.6.1.2.1.1.5.0 .1.3..."
std::string RequestText(const Message& request);

// ".1.3... INTEGER 640, .1.3... OCTET STRING 'x'", or the error.
std::string ReplyText(const Message& reply);

#endif
