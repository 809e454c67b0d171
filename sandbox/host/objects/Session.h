// The running host: its documents, macros and objects.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "automation/AutomationObject.h"
#include "base/Options.h"
#include "documents/Document.h"
#include "objects/HostModel.h"

namespace host
{

class ApplicationObject;
class CommandBarsObject;
class ComAddInObject;
class DocumentObject;

// The running host: its open documents, the macros it knows and the objects that it shows to the add-in. It lives on
// the user-interface thread and outlives every object that refers to it.
//
// A test has a host without a window by itself:
//
//     Options options{.host = HostKind::Word, .version = L"14.0", .settings = {{"document.final", "true"}}};
//     Session session{options};
//     session.Open(path, false); // or New()
//     IDispatch* application = &session.Application();
//
// Settings are read when they matter: a document's when it is opened or made, save.fault at each save, editing at each
// call; Set changes one in between. The host's README lists them. ObjectCore::StillReferenced tells what is still
// referred to once Release has been called.
class Session
{
public:
    explicit Session(Options options);
    ~Session();

    [[nodiscard]] const Options& Settings() const { return m_options; }
    void Set(const std::string& name, const std::string& value);

    [[nodiscard]] HostKind Kind() const { return m_options.host; }
    [[nodiscard]] HostVersion Version() const { return {m_options.host, m_options.MajorVersion()}; }
    [[nodiscard]] const HostFacts& Facts() const { return FactsOf(m_options.host); }
    [[nodiscard]] const HostModel& Model() const { return ModelOf(m_options.host); }
    // The members of one of its classes in its version.
    [[nodiscard]] std::span<const Member> MembersOf(ClassTable HostModel::*table) const;
    [[nodiscard]] ApplicationObject& Application() { return *m_application.Get(); }
    [[nodiscard]] CommandBarsObject& CommandBars() const { return *m_commandBars.Get(); }

    // Open documents, the active one first. Programs reach only what has a window and is not in Protected View as
    // active.
    [[nodiscard]] const std::vector<ComPtr<DocumentObject>>& OpenDocuments() const { return m_documents; }
    [[nodiscard]] DocumentObject* Active() const;
    [[nodiscard]] DocumentObject* Reachable() const;

    // These make the document active and tell the add-in so. Display shows a document that MakeNew made.
    DocumentObject& New();
    DocumentObject& Open(const std::wstring& path, bool readOnly);
    void Activate(DocumentObject& document);
    [[nodiscard]] ComPtr<DocumentObject> MakeNew();
    void Display(DocumentObject& document);

    void Close(DocumentObject& document);

    [[nodiscard]] long WindowsOfNext() const; // how many windows the next document gets
    [[nodiscard]] ComPtr<IDispatch> WindowList(std::vector<ComPtr<IDispatch>> windows) const;

    // Asks the add-in before a document is saved; false when it cancels.
    [[nodiscard]] bool MayBeSaved(DocumentObject& document);

    // Shows a question of the host's own where the settings want one. At its end the host's window is in use and has
    // the keyboard, whatever was before, as windows of Office's own leave it.
    void AskUser() const;

    // While the user edits a cell: CheckReady throws what most members then fail with, CheckAnswering what even
    // questions fail with in the busier kinds of editing.
    [[nodiscard]] bool IsEditing() const;
    void CheckReady() const;
    void CheckAnswering() const;

    // Runs a macro "name" or "document!name". Throws Error when there is none or it fails.
    void RunMacro(const std::wstring& name);
    [[nodiscard]] const std::vector<std::wstring>& MacrosRun() const { return m_macrosRun; }

    [[nodiscard]] const std::vector<ComPtr<ComAddInObject>>& AddIns() const { return m_addIns; }
    void AddAddIn(ComPtr<ComAddInObject> addIn);

    // Something that the window shows has changed.
    void Changed();
    std::function<void()> onChanged;
    std::function<void()> onQuit; // a program wants the host to end
    HWND window = nullptr;

    // Drops everything that the session holds; its objects live on only as long as others hold them.
    void Release();

private:
    void Prepare(Document& document) const;
    void Show(ComPtr<DocumentObject> document);
    void FireActivate();
    void ShowEditing();

    Options m_options;
    int m_lastNumber = 0;
    std::vector<ComPtr<DocumentObject>> m_documents;
    std::vector<ComPtr<ComAddInObject>> m_addIns;
    std::vector<std::wstring> m_macrosRun;
    ComPtr<ApplicationObject> m_application;
    ComPtr<CommandBarsObject> m_commandBars;
};

} // namespace host
