// Answers a message box that the code under test shows.
#pragma once

#include <windows.h>

#include <atomic>
#include <string>
#include <thread>

// Waits, on a thread of its own, for a message box and presses its OK.
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

    // Whether it came with a text that begins with the given one, under the title if one was given.
    [[nodiscard]] bool Appeared() const { return m_appeared; }
    [[nodiscard]] bool HadIcon() const { return m_hadIcon; }

private:
    static constexpr int kTextOfBox = 0xFFFF; // the id of a message box's text

    static bool HasIcon(HWND box)
    {
        for (HWND part = nullptr; (part = ::FindWindowExW(box, part, L"Static", nullptr)) != nullptr;)
            if (::SendMessageW(part, STM_GETICON, 0, 0) != 0) return true;
        return false;
    }

    void Watch()
    {
        for (bool answered = false; !m_stop && !answered; ::Sleep(20)) {
            const HWND box = ::FindWindowW(L"#32770", nullptr);
            wchar_t text[512] = L"";
            wchar_t title[64] = L"";
            if (box != nullptr) ::GetDlgItemTextW(box, kTextOfBox, text, 512);
            if (text[0] == L'\0') continue;
            ::GetWindowTextW(box, title, 64);
            m_hadIcon = HasIcon(box);
            m_appeared = std::wstring{text}.starts_with(m_text) && (m_title.empty() || m_title == title);
            answered = true;
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        }
    }

    std::wstring m_text;
    std::wstring m_title;
    std::atomic<bool> m_stop{false};
    std::atomic<bool> m_appeared{false};
    std::atomic<bool> m_hadIcon{false};
    std::thread m_thread;
};
