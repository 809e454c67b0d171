#include "support/frmAbout.h"

#include "Version.h"
#include "forms/TextRuler.h"
#include "resources/resource.h"
#include "support/VersionText.h"

namespace corvane
{

frmAbout::frmAbout() noexcept : Form{L"frmAbout", IDD_frmAbout} {}

frmAbout::~frmAbout() { Unload(); }

std::span<const FormHandler> frmAbout::Handlers() const
{
    static const FormHandler kHandlers[] = {
        Handle(cmkOK, BN_CLICKED, L"cmkOK_Click", &frmAbout::Hide),
        Handle(IDCANCEL, BN_CLICKED, L"cmkOK_Click", &frmAbout::Hide),
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
    ::GetObjectW(FontOf(Control(lblVersion)), sizeof font, &font);
    ::lstrcpynW(font.lfFaceName, L"Verdana", LF_FACESIZE);
    m_labelFont = UniqueFont{::CreateFontIndirectW(&font)};
    for (const int label : {lblComponentName, lblVersion, lblRights, lblLegalNotice})
        SetFont(label, m_labelFont.Get());
}

} // namespace corvane
