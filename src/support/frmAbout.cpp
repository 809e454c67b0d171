#include "support/frmAbout.h"

#include "Version.h"
#include "resources/resource.h"
#include "support/VersionText.h"

namespace corvane
{

frmAbout::frmAbout() noexcept : Form{L"frmAbout", IDD_frmAbout} {}

frmAbout::~frmAbout() { Unload(); }

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
    SetLabelFont();
    SetCaption(L"About Corvane for MS Office");
    SetText(lblComponentName, L"Corvane for MS Office");
    SetText(lblVersion, VersionText(kVersionMajor, kVersionMinor, kVersionRevision));
}

// The labels keep the size of the user's font but have a face of their own.
void frmAbout::SetLabelFont()
{
    LOGFONTW font{};
    const auto current = reinterpret_cast<HFONT>(::SendMessageW(Control(lblVersion), WM_GETFONT, 0, 0));
    ::GetObjectW(current, sizeof font, &font);
    ::lstrcpynW(font.lfFaceName, L"Verdana", LF_FACESIZE);
    m_labelFont = UniqueFont{::CreateFontIndirectW(&font)};
    for (const int label : {lblComponentName, lblVersion, lblRights, lblLegalNotice})
        ::SendMessageW(Control(label), WM_SETFONT, reinterpret_cast<WPARAM>(m_labelFont.Get()), TRUE);
}

void frmAbout::cmkOK_Click() { Hide(); }

} // namespace corvane
