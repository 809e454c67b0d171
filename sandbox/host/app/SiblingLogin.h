#pragma once

#include <string>

#include <windows.h>

namespace host
{

// Offers the login object of the sibling add-in for Excel while the host runs: its ProgID in the user's registry and its
// class object in this process.
class SiblingLogin
{
public:
    // "true" or "false" is what IsLoggedIn answers; any other text offers nothing.
    explicit SiblingLogin(const std::string& answer);
    SiblingLogin(const SiblingLogin&) = delete;
    SiblingLogin& operator=(const SiblingLogin&) = delete;
    ~SiblingLogin();

    // Removes the registry entry alone.
    void RemoveTraces() const;

private:
    bool m_offered = false;
    DWORD m_cookie = 0;
};

} // namespace host
