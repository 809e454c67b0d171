// A template of any bytes is read within its bounds, and what comes out can be read again.
#include "forms/FormTemplate.h"
#include "Input.h"

#include <span>

void Fuzz(Input& input)
{
    const corvane::TemplateFont font{static_cast<std::uint16_t>(input.Number(0, 65535)), 400, input.Choice(), 1,
                                     u"Segoe UI"};
    const std::string bytes = input.RestAsBytes();
    const auto copy = corvane::WithFont(std::as_bytes(std::span{bytes}), font);
    if (!copy.empty()) Require(corvane::WithFont(copy, font) == copy);
}
