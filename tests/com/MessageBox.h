// Answers a message box that the code under test shows.
#pragma once

#include <windows.h>

#include <atomic>
#include <string>
#include <thread>

// Waits, on a thread of its own, for a message box whose text begins with the given one and presses its OK.
class MessageBoxAnswer
{
public:
    explicit MessageBoxAnswer(std::wstring text, std::wstring title = {})
        : m_text{std::move(text)}, m_title{std::move(title)}, m_thread{[this] { Watch(); }}
    {}
    ~MessageBoxAnswer()
    {
        m_stop = true;
        m_thread.join();
    }
    MessageBoxAnswer(const MessageBoxAnswer&) = delete;
    MessageBoxAnswer& operator=(const MessageBoxAnswer&) = delete;

    [[nodiscard]] bool Appeared() const { return m_appeared; }
    [[nodiscard]] bool HadIcon() const { return m_hadIcon; }

private:
    static constexpr int kTextOfBox = 0xFFFF; // the ids of a message box's parts
    static constexpr int kIconOfBox = 20;

    void Watch()
    {
        while (!m_stop && !m_appeared) {
            const HWND box = ::FindWindowW(L"#32770", m_title.empty() ? nullptr : m_title.c_str());
            wchar_t text[512] = L"";
            if (box != nullptr) ::GetDlgItemTextW(box, kTextOfBox, text, 512);
            if (box != nullptr && std::wstring{text}.starts_with(m_text)) {
                m_hadIcon =
                    ::GetDlgItem(box, kIconOfBox) != nullptr && ::IsWindowVisible(::GetDlgItem(box, kIconOfBox));
                m_appeared = true;
                ::PostMessageW(box, WM_COMMAND, IDOK, 0);
            }
            ::Sleep(20);
        }
    }

    std::wstring m_text;
    std::wstring m_title;
    std::atomic<bool> m_stop{false};
    std::atomic<bool> m_appeared{false};
    std::atomic<bool> m_hadIcon{false};
    std::thread m_thread;
};
