#include "AddInLibrary.h"
#include "MessageBox.h"

#include "platform/LateBound.h"

#include <map>

namespace
{

class Library : public AddInLibrary
{};

TEST_F(Library, KnowsItsFourClassesAndNoOther)
{
    for (const CLSID& id : {CLSID_Connect, CLSID_CController, CLSID_CTraceLog, CLSID_CRbnBtnInfo}) {
        auto* object = Loaded().Create<IUnknown>(id);
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(CanUnload(), S_FALSE) << "a living object must keep the library";
        EXPECT_EQ(object->Release(), 0U);
    }
    void* nothing = this;
    EXPECT_EQ(Loaded().ClassObject(IID_IUnknown, IID_IClassFactory, &nothing), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(nothing, nullptr);
}

TEST_F(Library, FactoriesRefuseAggregationAndLockTheLibrary)
{
    IClassFactory* factory = nullptr;
    ASSERT_EQ(Loaded().ClassObject(CLSID_CController, IID_PPV_ARGS(&factory)), S_OK);
    void* object = this;
    EXPECT_EQ(factory->CreateInstance(factory, IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(factory->QueryInterface(IID_IDispatch, &object), E_NOINTERFACE);
    factory->LockServer(TRUE);
    factory->Release();
    EXPECT_EQ(CanUnload(), S_FALSE);
    ASSERT_EQ(Loaded().ClassObject(CLSID_CController, IID_PPV_ARGS(&factory)), S_OK);
    factory->LockServer(FALSE);
    factory->Release();
}

TEST_F(Library, ConnectAnswersItsInterfacesWithOneIdentity)
{
    auto* identity = Loaded().Create<IUnknown>(CLSID_Connect);
    ASSERT_NE(identity, nullptr);
    for (const IID& id :
         {__uuidof(IDTExtensibility2), __uuidof(IRibbonExtensibility), __uuidof(_Connect), IID_IDispatch}) {
        IUnknown* face = nullptr;
        ASSERT_EQ(identity->QueryInterface(id, reinterpret_cast<void**>(&face)), S_OK);
        IUnknown* same = nullptr;
        face->QueryInterface(IID_PPV_ARGS(&same));
        EXPECT_EQ(same, identity);
        same->Release();
        face->Release();
    }
    void* none = this;
    EXPECT_EQ(identity->QueryInterface(IID_IPersist, &none), E_NOINTERFACE);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(identity->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(identity->Release(), 0U);
}

// The members of an object's first interface in the order of their slots, behind those of IDispatch; "=" is a put.
std::wstring SlotsOf(IDispatch& object)
{
    constexpr int kDispatchSlots = 7;
    ITypeInfo* info = nullptr;
    object.GetTypeInfo(0, LOCALE_NEUTRAL, &info);
    std::map<int, std::wstring> slots;
    FUNCDESC* function = nullptr;
    for (UINT index = 0; SUCCEEDED(info->GetFuncDesc(index, &function)); ++index) {
        BSTR name = nullptr;
        UINT names = 0;
        info->GetNames(function->memid, &name, 1, &names);
        const int slot = function->oVft / static_cast<int>(sizeof(void*));
        if (slot >= kDispatchSlots)
            slots[slot] = (function->invkind == INVOKE_PROPERTYPUT ? L" =" : L" ") + std::wstring{name};
        ::SysFreeString(name);
        info->ReleaseFuncDesc(function);
    }
    info->Release();
    std::wstring text;
    for (const auto& [slot, member] : slots)
        text += member;
    return text;
}

TEST_F(Library, TheSlotsOfItsInterfacesKeepTheirOrder)
{
    const std::pair<CLSID, const wchar_t*> classes[] = {
        {CLSID_Connect, L" RibbonHandler GetEnabled GetLabel GetScreentip GetSupertip onLoad"},
        {CLSID_CController, L" SaveAsAssignement SaveGateDoc SaveRelatedDoc"},
        {CLSID_CTraceLog, L" WriteError WriteEventStart WriteEventEnd GetTabs WriteVariable WriteLine bTimeStamp"},
        {CLSID_CRbnBtnInfo,
         L" ID =ID Label =Label ImageMso =ImageMso Screentip =Screentip Supertip =Supertip"
         L" GetEnabled =GetEnabled GetLabel =GetLabel GetSupertip =GetSupertip"
         L" GetScreentip =GetScreentip OnAction =OnAction Description =Description Size =Size Clear"},
    };
    for (const auto& [id, expected] : classes) {
        auto* object = Loaded().Create<IDispatch>(id);
        ASSERT_NE(object, nullptr);
        const std::wstring slots =
            SlotsOf(*object); // a type library holds each name once, in whichever case comes first
        EXPECT_EQ(::lstrcmpiW(slots.c_str(), expected), 0) << testing::PrintToString(slots);
        object->Release();
    }
}

class Script : public AddInLibrary
{
protected:
    [[nodiscard]] corvane::LateBound Object(REFCLSID id) const
    {
        corvane::ComPtr<IDispatch> object;
        *object.GetAddressOf() = Loaded().Create<IDispatch>(id);
        return corvane::LateBound{object};
    }
};

TEST_F(Script, WritesAndReadsThePropertiesOfAButton)
{
    const auto button = Object(CLSID_CRbnBtnInfo);
    const wchar_t* const properties[] = {L"ID",       L"Label",        L"ImageMso",    L"Screentip",
                                         L"Supertip", L"GetEnabled",   L"GetLabel",    L"GetSupertip",
                                         L"OnAction", L"GetScreentip", L"Description", L"Size"};
    const auto all = [&] {
        std::wstring text;
        for (const wchar_t* name : properties)
            text += button.Text(name);
        return text;
    };
    wchar_t letter = L'a';
    for (const wchar_t* name : properties)
        button.Put(name, std::wstring(1, letter++));
    EXPECT_EQ(all(), L"abcdefghijkl");
    button.Call(L"Clear");
    EXPECT_EQ(all(), L"bde") << "it keeps label and tips";
}

TEST_F(Script, MovesTheLevelOfATrace)
{
    const auto log = Object(CLSID_CTraceLog);
    const auto tabs = [&] { return log.Call(L"GetTabs").Text(); };
    EXPECT_EQ(log.Text(L"bTimeStamp"), L"True");
    EXPECT_EQ(tabs(), L"\t");
    log.Call(L"WriteEventStart", L"Outer");
    EXPECT_EQ(tabs(), L"\t\t");
    log.Call(L"WriteLine", L"a line", 1);
    log.Call(L"WriteVariable", L"Number", 5);
    log.Call(L"WriteError", 287, L"declined", L"Script");
    log.Call(L"WriteEventEnd", L"Outer");
    log.Call(L"WriteEventEnd", L"Outer");
    EXPECT_EQ(tabs(), L"");
}

TEST_F(Script, IsToldOfACommandWithoutAConnection)
{
    const auto controller = Object(CLSID_CController);
    for (const std::wstring method : {L"SaveAsAssignement", L"SaveGateDoc", L"SaveRelatedDoc"}) {
        const MessageBoxAnswer box{L"CController." + method + L"\r\nObject variable or With block variable not set",
                                   L"CorvaneMSOffice"};
        controller.Call(method.c_str());
        EXPECT_TRUE(box.Appeared());
    }
}

} // namespace
