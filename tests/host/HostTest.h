#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "base/Text.h"
#include "objects/Application.h"
#include "objects/Session.h"
#include "platform/LateBound.h"

namespace host::test
{

// A host of any kind and version, with a folder for its documents.
class HostTest : public testing::Test
{
protected:
    void Start(const char* host, const wchar_t* version = L"16.0", Settings settings = {})
    {
        session.reset();
        Options options;
        options.host = FindHost(Widen(host))->kind;
        options.version = version;
        options.settings = std::move(settings);
        session = std::make_unique<Session>(options);
    }
    corvane::LateBound Application() { return corvane::LateBound{ComPtr<IDispatch>{&session->Application()}}; }

    TemporaryFolder folder;
    std::unique_ptr<Session> session;
};

} // namespace host::test
