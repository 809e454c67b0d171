#include "shared/DocumentUpload.h"

#include "shared/DocumentNames.h"
#include "shared/DocumentProperties.h"
#include "webservice/Transfer.h"

namespace corvane
{

UploadedDocument UploadDocument(HostDocument& document, const DocumentBinding& binding, bool hasTarget)
{
    BindDocument(document, binding);
    const std::wstring title = document.Title();
    UploadedDocument uploaded{{}, hasTarget ? document.SaveToDisk() : SavedDocument{}};
    document.FollowActive(); // a new one has got a file
    uploaded.name = UploadNameOf(title, uploaded.file.path);
    ExecuteASPWSUploadFile(binding.server, uploaded.file.path, uploaded.name);
    return uploaded;
}

} // namespace corvane
