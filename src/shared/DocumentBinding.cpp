#include "shared/DocumentBinding.h"

namespace corvane
{

DocumentBindingKind ClassifyBoundDocument(const DocumentBinding& binding) noexcept
{
    if (binding.excelReportId > 0) return DocumentBindingKind::ExcelReport;
    if (binding.projectId < 1)
        return binding.templateLibraryId >= 1 ? DocumentBindingKind::TemplateLibraryDocument
                                              : DocumentBindingKind::Unbound;
    // An activity's binding also carries its deliverable.
    if (binding.activityId > 0) return DocumentBindingKind::Activity;
    if (binding.deliverableId > 0) return DocumentBindingKind::Deliverable;
    if (binding.relatedFileId > 0) return DocumentBindingKind::RelatedDocument;
    if (binding.gateDocumentId >= 1) return DocumentBindingKind::GateDocument;
    return DocumentBindingKind::Unbound;
}

} // namespace corvane
