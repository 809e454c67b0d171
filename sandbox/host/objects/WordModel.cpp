#include "automation/OfficeInterfaces.h"
#include "objects/Application.h"
#include "objects/DocumentWindow.h"

namespace host
{
namespace
{

using A = ApplicationObject;
using C = DocumentsObject;
using D = DocumentObject;
using W = DocumentWindowObject;

constexpr Member kApplication[] = {
    {0, L"Name", kGet, Answer<&A::Name>},
    {1, L"Documents", kGet, Answer<&A::Documents>},
    {2, L"Windows", kGet, Answer<&A::Windows>},
    {3, L"ActiveDocument", kGet, Answer<&A::ActiveDocument>},
    {4, L"ActiveWindow", kGet, Answer<&A::ActiveWindow>},
    {5, L"CommandBars", kGet, Answer<&A::CommandBars>},
    {6, L"Build", kGet, Answer<&A::Build>},
    {7, L"Version", kGet, Answer<&A::Version>},
    {8, L"Run", kMethod, Answer<&A::Run>},
    {9, L"Activate", kMethod, Answer<&A::Activate>},
    {10, L"COMAddIns", kGet, Answer<&A::ComAddIns>},
};

constexpr Member kDocuments[] = {
    {0, L"Item", kEither, Answer<&C::Item>},
    {1, L"Count", kGet, Answer<&C::Count>},
    {2, L"Add", kMethod, Answer<&C::Add>},
    {3, L"Open", kMethod, Answer<&C::Open<2>>},
};

constexpr Member kDocument[] = {
    {0, L"Name", kGet, Answer<&D::Name>},
    {1, L"Application", kGet, Answer<&D::Application>},
    {2, L"BuiltInDocumentProperties", kEither, Answer<&D::BuiltIn>},
    {3, L"CustomDocumentProperties", kEither, Answer<&D::Custom>},
    {4, L"Path", kGet, Answer<&D::Path>},
    {5, L"FullName", kGet, Answer<&D::FullName>},
    {6, L"ReadOnly", kGet, Answer<&D::IsReadOnly>},
    {7, L"Saved", kGetPut, Answer<&D::Saved>},
    {8, L"Windows", kGet, Answer<&D::Windows>},
    {9, L"Save", kMethod, Answer<&D::Save>},
    {10, L"SaveAs", kMethod, Answer<&D::SaveUnder>},
    {11, L"Close", kMethod, Answer<&D::CloseSaving>},
    {12, L"Final", kGetPut, Answer<&D::Final>},
    {13, L"HasVBProject", kGet, Answer<&D::HasVBProject>},
};

constexpr Member kWindow[] = {
    {0, L"Caption", kGet, Answer<&W::Caption>},
    {1, L"Document", kGet, Answer<&W::Document>},
    {2, L"Active", kGet, Answer<&W::IsActive>},
    {3, L"Activate", kMethod, Answer<&W::Activate>},
};

constexpr HostModel kModel{{L"Application", OfficeId(0x00020970), kApplication},
                           {L"Documents", OfficeId(0x0002096C), kDocuments},
                           {L"Document", OfficeId(0x0002096B), kDocument, 1},
                           {L"Windows", OfficeId(0x00020961), {}},
                           {L"Window", OfficeId(0x00020962), kWindow}};

} // namespace

const HostModel& WordModel() { return kModel; }

} // namespace host
