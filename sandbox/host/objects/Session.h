#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "app/Options.h"
#include "automation/AutomationObject.h"

namespace host
{

class ApplicationObject;
class CommandBarsObject;
class ComAddInObject;
class DocumentObject;

// The running host: its open presentations, the macros it knows and the objects that it shows to the add-in.
// It lives on the user-interface thread and outlives every object that refers to it.
class Session
{
public:
    explicit Session(Options options);
    ~Session();

    [[nodiscard]] const Options& Settings() const { return m_options; }
    [[nodiscard]] ApplicationObject& Application() { return *m_application.Get(); }
    [[nodiscard]] CommandBarsObject& CommandBars() { return *m_commandBars.Get(); }

    // Open presentations, the active one first.
    [[nodiscard]] const std::vector<ComPtr<DocumentObject>>& OpenDocuments() const { return m_documents; }
    [[nodiscard]] DocumentObject* Active() const;

    // These make the presentation active and tell the add-in so.
    DocumentObject& New();
    DocumentObject& Open(const std::wstring& path, bool readOnly);
    void Activate(DocumentObject& presentation);

    void Close(DocumentObject& presentation);

    // Asks the add-in before a presentation is saved; false when it cancels.
    [[nodiscard]] bool MayBeSaved(DocumentObject& presentation);

    // Runs a macro "name" or "presentation!name". Throws AutomationError when there is none or it fails.
    void RunMacro(const std::wstring& name);
    [[nodiscard]] const std::vector<std::wstring>& MacrosRun() const { return m_macrosRun; }

    [[nodiscard]] const std::vector<ComPtr<ComAddInObject>>& AddIns() const { return m_addIns; }
    void AddAddIn(ComPtr<ComAddInObject> addIn);

    // Something that the window shows has changed.
    void Changed();
    std::function<void()> onChanged;
    HWND window = nullptr;

    // Drops everything that the session holds; its objects live on only as long as others hold them.
    void Release();

private:
    void Show(ComPtr<DocumentObject> presentation);
    void FireActivate();

    Options m_options;
    int m_lastNumber = 0;
    std::vector<ComPtr<DocumentObject>> m_documents;
    std::vector<ComPtr<ComAddInObject>> m_addIns;
    std::vector<std::wstring> m_macrosRun;
    ComPtr<ApplicationObject> m_application;
    ComPtr<CommandBarsObject> m_commandBars;
};

} // namespace host
