#include "AddInLibrary.h"

#include <array>

namespace
{

class Library : public AddInLibrary
{};

TEST_F(Library, KnowsItsFourClassesAndNoOther)
{
    for (const CLSID& id : {CLSID_Connect, CLSID_CController, CLSID_CTraceLog, CLSID_CRbnBtnInfo}) {
        auto* object = Create<IUnknown>(id);
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(CanUnload(), S_FALSE) << "a living object must keep the library";
        EXPECT_EQ(object->Release(), 0U);
    }
    void* nothing = this;
    EXPECT_EQ(ClassObject(IID_IUnknown, IID_IClassFactory, &nothing), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(nothing, nullptr);
}

TEST_F(Library, FactoriesRefuseAggregationAndLockTheLibrary)
{
    IClassFactory* factory = nullptr;
    ASSERT_EQ(ClassObject(CLSID_CController, IID_PPV_ARGS(&factory)), S_OK);
    void* object = this;
    EXPECT_EQ(factory->CreateInstance(factory, IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(factory->QueryInterface(IID_IDispatch, &object), E_NOINTERFACE);
    factory->LockServer(TRUE);
    factory->Release();
    EXPECT_EQ(CanUnload(), S_FALSE);
    ASSERT_EQ(ClassObject(CLSID_CController, IID_PPV_ARGS(&factory)), S_OK);
    factory->LockServer(FALSE);
    factory->Release();
}

TEST_F(Library, ConnectAnswersItsInterfacesWithOneIdentity)
{
    auto* identity = Create<IUnknown>(CLSID_Connect);
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

TEST_F(Library, ConnectsPlainDispatchOffersTheRibbonCallbacks)
{
    auto* dispatch = Create<IDispatch>(CLSID_Connect);
    ASSERT_NE(dispatch, nullptr);
    std::array<const wchar_t*, 6> names = {L"RibbonHandler", L"GetEnabled",  L"GetLabel",
                                           L"GetScreentip",  L"GetSupertip", L"onLoad"};
    for (const wchar_t* name : names) {
        DISPID member = DISPID_UNKNOWN;
        auto* text = const_cast<LPOLESTR>(name);
        EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, &text, 1, 0, &member), S_OK) << "no such callback";
    }
    dispatch->Release();
}

} // namespace
