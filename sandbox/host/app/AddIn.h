// An add-in that the host loads.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "automation/ClassLoader.h"
#include "base/HostFacts.h"
#include "objects/AddInObjects.h"
#include "ribbon/Ribbon.h"

namespace host
{

class Session;

// An add-in as the registry lists it.
struct AddInEntry
{
    std::wstring progId;
    std::wstring friendlyName;
    std::wstring description;
    std::int32_t loadBehavior = 0;

    [[nodiscard]] bool LoadsAtStart() const { return (loadBehavior & 3) == 3; }
};

// The add-ins that the registry lists for this host, by their names; the user's entry counts before the machine's.
[[nodiscard]] std::map<std::wstring, AddInEntry> RegisteredAddIns(const HostFacts& facts);

enum class AddInState
{
    NotLoaded,
    Connected,
    Failed,
    Disconnected,
};

// One add-in from its creation to its disconnection, in Office's order of calls.
class AddIn
{
public:
    AddIn(Session& session, ClassLoader& classes, AddInEntry entry);

    // Creates and connects the add-in and reads its ribbon. A failure is reported, and written to the registry as
    // Office does; nothing is thrown.
    void Load();

    // Tells the add-in that the host ends or the user switched it off, and releases it.
    void Disconnect();

    [[nodiscard]] AddInState State() const { return m_state; }
    [[nodiscard]] const AddInEntry& Entry() const { return m_entry; }
    [[nodiscard]] const ShownRibbon* Ribbon() const { return m_ribbon ? &*m_ribbon : nullptr; } // null: it has none

    // Calls the control's onAction. Throws Error when the callback is missing or fails.
    void Press(const RibbonControl& control);

    // Called with every failure of the add-in that a user of Office would be told about.
    std::function<void(const std::wstring&)> onFault;

private:
    void Create();
    void Connect();
    void ReadRibbonXml();
    void ReadDynamic(const std::vector<RibbonControl>& controls);
    void ReadDynamicStates();
    void SwitchOff();
    void Fail(const std::wstring& why);
    [[nodiscard]] ComPtr<RibbonControlObject> ControlObject(const RibbonControl& control) const;
    Variant Callback(const std::string& name, IDispatch* argument);

    Session& m_session;
    ClassLoader& m_classes;
    AddInEntry m_entry;
    AddInState m_state = AddInState::NotLoaded;
    ComPtr<ComAddInObject> m_registration;
    ComPtr<IDTExtensibility2> m_extensibility;
    ComPtr<IDispatch> m_callbacks;
    ComPtr<RibbonUiObject> m_ribbonUi;
    std::optional<ShownRibbon> m_ribbon;
};

} // namespace host
