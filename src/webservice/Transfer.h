// Bytes to and from the server: the upload of a saved document, and answers that are no text.
#pragma once

#include "platform/BinaryStream.h"
#include "webservice/RequestText.h"

#include <string>

namespace corvane
{

// Uploads a file under a name, once it is completely written and within the server's size limit. Throws Error, from
// the transport on with the source "ExecuteASPWSUploadFile" or that of the server's error document; errors of the size
// query pass unchanged.
void ExecuteASPWSUploadFile(const std::wstring& sServer, const std::wstring& sFilePath,
                            const std::wstring& sUploadName);

// Calls an operation by GET and returns its answer as a binary stream, positioned at its end. Does not record the
// user's access. Throws Error.
[[nodiscard]] BinaryStream ExecuteASPWebserviceBinary(const std::wstring& sServer, const std::wstring& sWebService,
                                                      const std::wstring& sOperation, const Parameters& vParams);

} // namespace corvane
