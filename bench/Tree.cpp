// The tree of targets filled from an answer, against parsing the same answer and inserting the same nodes; and, with
// another thread that posts messages meanwhile, how long these wait.
#include "BareRequest.h"
#include "Benchmarks.h"
#include "Measure.h"
#include "platform/ComObject.h"
#include "platform/MessageLoop.h"
#include "selection/TargetTree.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace bench
{
namespace
{

constexpr int kProjects = 500;
constexpr int kStagesPerProject = 4;
constexpr int kActivitiesPerDeliverable = 3;
constexpr UINT kBeat = WM_APP;

// The nodes of the answer in document order, as plain texts, and the answer.
struct Node
{
    std::wstring text;
    std::size_t depth;
};
struct Answer
{
    std::vector<Node> nodes;
    std::wstring text = L"<projects>";
};

class AnswerWriter
{
public:
    explicit AnswerWriter(std::size_t size) : m_size{size} {}

    Answer Write()
    {
        const std::size_t perStage = m_size / (std::size_t{kProjects} * kStagesPerProject);
        for (int project = 0; project < kProjects; ++project) {
            Open(0, L"project IconSet=\"1\" pid", L"Project");
            for (int stage = 0; stage < kStagesPerProject; ++stage) {
                Open(1, L"stage phaseid", L"Stage");
                WriteDeliverables(perStage - 1);
                m_answer.text += L"</stage>";
            }
            m_answer.text += L"</project>";
        }
        m_answer.text += L"</projects>";
        return std::move(m_answer);
    }

private:
    void Open(std::size_t depth, const std::wstring& element, const std::wstring& name)
    {
        const std::wstring number = std::to_wstring(m_answer.nodes.size() + 1);
        const std::wstring text = name + L" " + number + L" of the yearly programme";
        m_answer.text += L"<" + element + L"=\"" + number + L"\" name=\"" + text + L"\">";
        m_answer.nodes.push_back({text, depth});
    }
    void WriteDeliverables(std::size_t nodes)
    {
        while (nodes > 0) {
            Open(2, L"deliverable deliverableid", L"Deliverable");
            --nodes;
            for (int activity = 0; activity < kActivitiesPerDeliverable && nodes > 0; ++activity, --nodes) {
                Open(3, L"activity activityid", L"Activity");
                m_answer.text += L"</activity>";
            }
            m_answer.text += L"</deliverable>";
        }
    }

    std::size_t m_size;
    Answer m_answer;
};

// A window with a tree view like the form's, which notes how long messages waited for the one before to be handled.
class TreeWindow
{
public:
    TreeWindow() : m_window{MakeWindow()}, m_tree{MakeTree(m_window)} { corvane::PumpPending(); }
    ~TreeWindow() { ::DestroyWindow(m_window); }
    TreeWindow(const TreeWindow&) = delete;
    TreeWindow& operator=(const TreeWindow&) = delete;

    [[nodiscard]] HWND Window() const { return m_window; }
    [[nodiscard]] HWND Tree() const { return m_tree; }
    [[nodiscard]] static double LongestGap() { return s_longest; }

private:
    static HWND MakeWindow()
    {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = &Handle;
        windowClass.lpszClassName = L"Bench";
        ::RegisterClassW(&windowClass);
        return ::CreateWindowW(L"Bench", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 500, 400, nullptr, nullptr,
                               nullptr, nullptr);
    }

    static HWND MakeTree(HWND window)
    {
        constexpr DWORD kStyle =
            WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS;
        return ::CreateWindowW(WC_TREEVIEWW, L"", kStyle, 0, 0, 460, 250, window, nullptr, nullptr, nullptr);
    }

    static LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM word, LPARAM data)
    {
        if (message == kBeat) {
            s_longest = std::max(s_longest, s_last.Milliseconds());
            s_last = Stopwatch{};
        }
        return ::DefWindowProcW(window, message, word, data);
    }

    static inline Stopwatch s_last;
    static inline double s_longest = 0;
    HWND m_window;
    HWND m_tree;
};

// Sends the window a message every few milliseconds.
class Heart
{
public:
    explicit Heart(HWND window)
        : m_thread{[this, window] {
              while (!m_ended) {
                  ::PostMessageW(window, kBeat, 0, 0);
                  ::Sleep(3);
              }
          }}
    {}
    ~Heart()
    {
        m_ended = true;
        m_thread.join();
    }
    Heart(const Heart&) = delete;
    Heart& operator=(const Heart&) = delete;

private:
    std::atomic<bool> m_ended = false;
    std::thread m_thread;
};

void ParseBare(const Answer& answer)
{
    Microsoft::WRL::ComPtr<IXMLDOMDocument> document;
    constexpr CLSID kParser = {0x88D969C0, 0xF192, 0x11D4, {0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5}};
    Require(::CoCreateInstance(kParser, nullptr, CLSCTX_INPROC_SERVER, IID_IXMLDOMDocument,
                               reinterpret_cast<void**>(document.GetAddressOf())),
            "DOMDocument");
    BSTR text = ::SysAllocString(answer.text.c_str());
    VARIANT_BOOL loaded = VARIANT_FALSE;
    Require(document->loadXML(text, &loaded), "loadXML");
    ::SysFreeString(text);
}

void FillBare(HWND tree, const Answer& answer)
{
    const corvane::TreeImages images;
    TreeView_SetImageList(tree, images.Get(), TVSIL_NORMAL);
    Stopwatch watch;
    ParseBare(answer);
    Tell("parse", watch.Milliseconds());
    ::SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
    HTREEITEM parents[5] = {TVI_ROOT};
    for (const Node& node : answer.nodes) {
        TVINSERTSTRUCTW insert{};
        insert.hParent = parents[node.depth];
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        insert.item.pszText = const_cast<LPWSTR>(node.text.c_str());
        parents[node.depth + 1] = TreeView_InsertItem(tree, &insert);
    }
    ::SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
    Tell("time", watch.Milliseconds());
}

void FillAsTheAddIn(HWND tree, const Answer& answer)
{
    corvane::TargetTree targets{tree, corvane::TreeMode::Assignment, [](corvane::TreeImages&, const std::wstring&) {}};
    const Stopwatch watch;
    corvane::XmlDocument document;
    if (!document.Load(answer.text)) throw std::logic_error{"the answer cannot be parsed"};
    const auto projects = document.Select(L"//project");
    Tell("parse", watch.Milliseconds());
    targets.AddProjects(projects, {}, [] { return true; });
    Tell("time", watch.Milliseconds());
    if (TreeView_GetCount(tree) != answer.nodes.size()) throw std::logic_error{"nodes are missing"};
    corvane::PumpPending();
}

} // namespace

void FillTree(const Words& words)
{
    corvane::Library::SetModule(::GetModuleHandleW(nullptr));
    const Answer answer = AnswerWriter{std::stoul(words[1])}.Write();
    const TreeWindow window;
    ParseBare({{}, L"<x/>"}); // loads the parser
    if (words[0] == L"bare") return FillBare(window.Tree(), answer);
    if (words[0] == L"add-in") return FillAsTheAddIn(window.Tree(), answer);
    {
        const Heart heart{window.Window()};
        corvane::PumpFor(std::chrono::milliseconds{50});
        FillAsTheAddIn(window.Tree(), answer);
        corvane::PumpFor(std::chrono::milliseconds{50});
    }
    Tell("gap", TreeWindow::LongestGap());
}

} // namespace bench
