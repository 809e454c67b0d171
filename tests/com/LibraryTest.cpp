#include "AddInLibrary.h"

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

} // namespace
