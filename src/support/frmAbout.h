// The About box.
#pragma once

#include "forms/Form.h"
#include "platform/Owners.h"

namespace corvane
{

// Names the add-in and shows its version.
class frmAbout final : public Form
{
public:
    frmAbout() noexcept;
    ~frmAbout() override;

private:
    [[nodiscard]] std::span<const FormHandler> Handlers() const override;
    void Form_Load() override;
    void SetLabelFont();

    UniqueFont m_labelFont;
};

} // namespace corvane
