#pragma once

#include <functional>
#include <string>
#include <vector>

#include <windows.h>

#include <commctrl.h>

#include "app/Host.h"
#include "player/Script.h"
#include "player/Usage.h"

namespace host
{

// Plays a scenario from a thread of its own, as a person and an outside program would: it posts messages to windows and
// work to the user-interface thread, and waits until what it wants to see is there.
class Player
{
public:
    Player(Host& host, std::wstring scriptPath);

    // Plays all steps and makes the host quit; true when every one passed. Says what failed and what was there instead.
    [[nodiscard]] bool Play();

    [[nodiscard]] std::size_t StepCount() const { return m_steps.size(); }

private:
    // What a step's check found: nothing when it is satisfied, otherwise what is there instead.
    using Finding = std::wstring;

    void Perform(const Step& step);
    void WaitFor(const std::function<Finding()>& check);
    void OnUi(std::function<void()> work);
    void Settle();
    void CheckFaults();

    // Steps of the host.
    void Set(const Step& step);
    void New(const Step&);
    void Open(const Step& step);
    void Save(const Step&);
    void SaveAs(const Step& step);
    void Activate(const Step& step);
    void Close(const Step&);
    void Quit(const Step&);
    void Exit(const Step&);
    void Disconnect(const Step&);
    void Command(const Step& step);
    void Controller(const Step& step);
    void Show(const Step& step);
    void Property(const Step& step);
    void Ran(const Step& step);
    [[nodiscard]] bool HasRun(const std::string& macro);
    void Registry(const Step& step);
    void Faults(const Step& step);
    void File(const Step& step);
    void Mail(const Step& step);
    void Letter(const Step& step);
    void Shot(const Step& step);
    void MeasuredUsage(const Step& step);
    void WaitUntilLoaded();
    void StartCommand(std::function<void()> command);
    [[nodiscard]] std::wstring OutFile(const std::string& name) const;
    [[nodiscard]] Finding PropertyFinding(const std::wstring& name, const std::wstring& wanted);

    // Steps on windows.
    void Window(const Step& step);
    void Closed(const Step& step);
    void Type(const Step& step);
    void Press(const Step& step);
    void Select(const Step& step);
    void Pick(const Step& step);
    void DoubleClick(const Step& step);
    void Choose(const Step& step);
    void Check(const Step& step);
    void Key(const Step& step);
    void Tab(const Step& step);
    void Repainted(const Step& step);
    void LayoutFits(const Step& step);
    void Readable(const Step& step);
    void Spoken(const Step& step);
    void Hover(const Step& step);
    void Over(const Step& step);
    [[nodiscard]] HWND NamedWindow(const std::string& name);
    [[nodiscard]] HWND Form() const;
    [[nodiscard]] HWND Control(const std::string& name) const;
    [[nodiscard]] HWND UsableControl(const std::string& name);
    void Focus(HWND control);
    void PressButton(const std::string& name);
    void PressKeys(const std::string& keys);
    void Address(const std::string& window);
    void AwaitClosed(const std::wstring& name);
    void SelectNode(const std::string& treeName, const std::string& path);
    void ExpandNode(HWND tree, HTREEITEM node);

    // Steps on message boxes.
    void Message(const Step& step);
    void No(const Step& step);
    void ExpectIcon(const Step& step);

    // Expectations.
    void Expect(const Step& step);
    void ExpectAddIn(const Step& step);
    void ExpectHost(const Step& step);
    void ExpectDocument(const Step& step);
    void ExpectCommand(const Step& step);
    void ExpectMenu(const Step& step);
    void ExpectCloseBox(const Step& step);
    void ExpectHourglass(const Step& step);
    [[nodiscard]] Finding StateFinding(const std::string& control, const std::string& state);

    Host& m_host;
    std::wstring m_path;
    std::vector<Step> m_steps;
    std::wstring m_form;      // the class of the window that steps address
    bool m_onMessage = false; // they address the topmost message box, until its button is pressed
    int m_measured = 0;       // "usage" steps with a number so far
    Usage m_settledUsage;
    bool m_quit = false;
    bool m_faultsExpected = false;
};

} // namespace host
