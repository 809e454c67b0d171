// The way of a document to the server: bound, saved to disk, uploaded.
#pragma once

#include "shared/DocumentBinding.h"
#include "shared/HostDocument.h"

#include <string>

namespace corvane
{

// What a document was uploaded as, and the file that was.
struct UploadedDocument
{
    std::wstring name;
    SavedDocument file;
};

// Binds the document (where it can carry a binding), saves it to disk and uploads the file, in this order, so that the
// file carries the binding. Without a target there is no file to save: the upload then fails as that of an empty one.
// Throws Error; a document that is marked as final stays as it was.
UploadedDocument UploadDocument(HostDocument& document, const DocumentBinding& binding, bool hasTarget = true);

} // namespace corvane
