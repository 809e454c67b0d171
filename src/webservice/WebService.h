// Operations on the server: requests built from a server address, an operation and its parameters, answers parsed, and
// every failure raised as an Error.
#pragma once

#include "platform/XmlDocument.h"
#include "webservice/Operations.h"
#include "webservice/RequestText.h"

#include <optional>
#include <string>

namespace corvane
{

// An operation's answer: the parsed document (empty when the text was no XML) or the text, as the operation says.
struct WebAnswer
{
    std::optional<XmlDocument> document;
    std::wstring text;
};

// Calls an operation on a server's page and waits for the answer while messages are handled. sServer is used as it
// stands. Throws Error: number 225 for transport failures, the server's own number for an error document, else the HTTP
// status.
WebAnswer ExecuteASPWebService(const std::wstring& sServer, const std::wstring& sWebService,
                               const Operation& sOperation, const Parameters& vParams);

// The same on the service page, for operations of one answer form.
[[nodiscard]] XmlDocument QueryXml(const std::wstring& server, const Operation& operation,
                                   const Parameters& parameters);
[[nodiscard]] std::wstring QueryText(const std::wstring& server, const Operation& operation,
                                     const Parameters& parameters);

// The first row ("//z:row") of a rowset; Error number 91 when there is none.
[[nodiscard]] XmlNode FirstRow(const XmlDocument& rowset);

// Records the user's access on the server, once per process and shared with the sibling add-ins. Throws like an
// operation, with the source "UpdateUserLog".
void UpdateUserLog(const std::wstring& sServer, const std::wstring& sWebService);

// Whether the access has still to be recorded; and the record of it, kept here and with the sibling's login object.
[[nodiscard]] bool AccessLogPending();
void SetAccessLogged(bool bValue);

} // namespace corvane
