// How a document remembers where on the server it was saved to.
#pragma once

#include "shared/Target.h"

#include <cstdint>
#include <string>

namespace corvane
{

// What a document is bound to, by the ids in its properties.
enum class DocumentBindingKind
{
    Deliverable,
    Activity,
    RelatedDocument,
    GateDocument,
    ExcelReport,
    TemplateLibraryDocument,
    Unbound
};

// The target that a document's properties hold, its server, and what else they tell. 0 stands for none.
struct DocumentBinding : Target
{
    std::wstring server;
    std::int32_t excelReportId = 0;
    std::int32_t templateLibraryId = 0;
    bool projectReport = false; // read only
};

// A numeric binding property and the id it holds.
struct BindingProperty
{
    const wchar_t* name;
    std::int32_t DocumentBinding::*id;
};

// The property that holds the server, and those that hold the ids, in the order in which they are written.
inline constexpr const wchar_t* kServerProperty = L"KRX_SYS_Server";
inline constexpr BindingProperty kBindingProperties[] = {
    {L"KRX_SYS_ProjectID", &DocumentBinding::projectId},
    {L"KRX_SYS_DeliverableID", &DocumentBinding::deliverableId},
    {L"KRX_SYS_ActivityID", &DocumentBinding::activityId},
    {L"KRX_SYS_RelatedFileID", &DocumentBinding::relatedFileId},
    {L"KRX_SYS_GateDocumentID", &DocumentBinding::gateDocumentId},
    {L"HALVEX_MSExcelReportID", &DocumentBinding::excelReportId},
    {L"KRX_SYS_TemplateLibraryID", &DocumentBinding::templateLibraryId},
};

// Properties that the server or a document's author sets and the add-in only reads.
inline constexpr const wchar_t* kProjectReportProperty = L"KRX_SYS_ProjectReport";
inline constexpr const wchar_t* kDoEventsProperty = L"KRX_SYS_DoEvents";

// The kind of a binding, from the sign of its ids alone; the server's name does not count.
[[nodiscard]] DocumentBindingKind ClassifyBoundDocument(const DocumentBinding& binding) noexcept;

} // namespace corvane
