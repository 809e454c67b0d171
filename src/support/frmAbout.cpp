#include "support/frmAbout.h"

#include "Version.h"
#include "resources/resource.h"
#include "support/VersionText.h"

namespace corvane
{

frmAbout::frmAbout() noexcept : Form{L"frmAbout", IDD_frmAbout} {}

std::span<const FormHandler> frmAbout::Handlers() const
{
    static const FormHandler kHandlers[] = {
        Handle(cmkOK, BN_CLICKED, L"cmkOK_Click", &frmAbout::cmkOK_Click),
        Handle(IDCANCEL, BN_CLICKED, L"cmkOK_Click", &frmAbout::cmkOK_Click),
    };
    return kHandlers;
}

void frmAbout::Form_Load()
{
    SetCaption(L"About Corvane for MS Office");
    SetText(lblComponentName, L"Corvane for MS Office");
    SetText(lblVersion, VersionText(kVersionMajor, kVersionMinor, kVersionRevision));
}

void frmAbout::cmkOK_Click() { Hide(); }

} // namespace corvane
