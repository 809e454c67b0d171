// What the host's window shows and what its user does with it, as the application above it answers.
#pragma once

#include <string>
#include <vector>

#include "base/HostFacts.h"
#include "objects/CommandBars.h"
#include "objects/DocumentObject.h"
#include "ribbon/Ribbon.h"

namespace host
{

// What the host's own menus and buttons do.
enum class HostCommand
{
    New,
    Open,
    Save,
    SaveAs,
    Close,
    Exit,
};

// The application as its window sees it.
class Desk
{
public:
    [[nodiscard]] virtual const HostFacts& Facts() const = 0;
    [[nodiscard]] virtual host::Edition Edition() const = 0;
    [[nodiscard]] virtual DocumentObject* ActiveDocument() const = 0; // null: none is open
    [[nodiscard]] virtual CommandBarObject& MenuBar() = 0;
    [[nodiscard]] virtual std::vector<const ShownRibbon*> Ribbons() const = 0; // of the add-ins

    // Both return when the windows that they open are closed.
    virtual void Perform(HostCommand command) = 0;
    virtual void Press(const std::string& name) = 0; // an add-in's ribbon control by its id, or menu entry by its tag

protected:
    ~Desk() = default;
};

} // namespace host
