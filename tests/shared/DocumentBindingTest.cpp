#include "shared/DocumentBinding.h"

#include <gtest/gtest.h>
#include <tuple>

namespace corvane
{
namespace
{

using Kind = DocumentBindingKind;

struct Ids
{
    std::int32_t project = 0;
    std::int32_t deliverable = 0;
    std::int32_t activity = 0;
    std::int32_t related = 0;
    std::int32_t gateDocument = 0;
    std::int32_t excelReport = 0;
    std::int32_t templateLibrary = 0;
};

constexpr std::tuple<const char*, Ids, Kind> kCases[] = {
    {"NoIds", {}, Kind::Unbound},
    {"ProjectAlone", {.project = 12}, Kind::Unbound},
    {"Deliverable", {.project = 12, .deliverable = 3}, Kind::Deliverable},
    {"ActivityWithItsDeliverable", {.project = 12, .deliverable = 3, .activity = 7}, Kind::Activity},
    {"RelatedDocument", {.project = 12, .related = 4}, Kind::RelatedDocument},
    {"GateDocument", {.project = 12, .gateDocument = 1}, Kind::GateDocument},
    {"DeliverableBeforeRelated", {.project = 1, .deliverable = 1, .related = 1, .gateDocument = 1}, Kind::Deliverable},
    {"RelatedBeforeGate", {.project = 1, .related = 1, .gateDocument = 1}, Kind::RelatedDocument},
    {"ReportBeforeActivity", {.project = 1, .activity = 1, .excelReport = 5}, Kind::ExcelReport},
    {"ReportWithoutProject", {.deliverable = 3, .activity = 7, .excelReport = 5}, Kind::ExcelReport},
    {"ReportBeforeTemplate", {.excelReport = 5, .templateLibrary = 2}, Kind::ExcelReport},
    {"Template", {.templateLibrary = 1}, Kind::TemplateLibraryDocument},
    {"TemplateHidesOtherIds", {.deliverable = 3, .templateLibrary = 1}, Kind::TemplateLibraryDocument},
    {"TemplateOfAProjectIsNone", {.project = 1, .templateLibrary = 1}, Kind::Unbound},
    {"IdsWithoutProject", {.deliverable = 3, .activity = 7, .related = 2, .gateDocument = 1}, Kind::Unbound},
    {"NegativeProjectIsNone", {.project = -1, .deliverable = 3}, Kind::Unbound},
    {"NegativeIdsAreNone",
     {.project = 1, .deliverable = -1, .activity = -1, .related = -1, .gateDocument = 2, .excelReport = -1},
     Kind::GateDocument},
    {"NegativeTemplateIsNone", {.templateLibrary = -1}, Kind::Unbound},
};

} // namespace

TEST(DocumentBinding, IsClassifiedByTheSignsOfItsIds)
{
    for (const auto& [name, ids, expected] : kCases) {
        const DocumentBinding binding{{ids.project, ids.deliverable, ids.activity, ids.related, ids.gateDocument},
                                      {},
                                      ids.excelReport,
                                      ids.templateLibrary};
        EXPECT_EQ(ClassifyBoundDocument(binding), expected) << name;
    }
}

TEST(DocumentBinding, NamesItsPropertiesInTheOrderOfWriting)
{
    std::wstring names = kServerProperty;
    for (const auto& [name, id] : kBindingProperties)
        names += L" " + std::wstring{name};
    EXPECT_EQ(names, L"KRX_SYS_Server KRX_SYS_ProjectID KRX_SYS_DeliverableID KRX_SYS_ActivityID KRX_SYS_RelatedFileID "
                     L"KRX_SYS_GateDocumentID HALVEX_MSExcelReportID KRX_SYS_TemplateLibraryID");
}

// Automation clients know the kinds by these numbers.
static_assert(static_cast<int>(Kind::Deliverable) == 0 && static_cast<int>(Kind::ExcelReport) == 4 &&
              static_cast<int>(Kind::Unbound) == 6);

} // namespace corvane
