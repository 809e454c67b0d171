#include "AddInLibrary.h"
#include "MessageBox.h"

#include "platform/LateBound.h"
#include "platform/Procedure.h"

#include <map>
#include <thread>

namespace
{

class Library : public AddInLibrary
{};

TEST_F(Library, KnowsItsClassesAndNoOther)
{
    for (const CLSID& id : {CLSID_Connect, CLSID_CController, CLSID_CTraceLog, CLSID_CRbnBtnInfo, CLSID_CSaveResult}) {
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

// Whether a member that is called by its slot, with nothing in every argument, does more than refuse the thread.
bool Serves(IDispatch& object, const FUNCDESC& function)
{
    VARIANT nothing{};
    VARIANT result{};
    VARIANTARG* arguments[] = {&nothing, &nothing, &nothing, &nothing, &nothing};
    VARTYPE types[] = {VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR}; // or another pointer
    for (SHORT at = 0; at < function.cParams; ++at)
        if (function.lprgelemdescParam[at].tdesc.vt == VT_VARIANT) types[at] = VT_VARIANT;
    const UINT count = static_cast<UINT>(function.cParams) + (function.elemdescFunc.tdesc.vt != VT_VOID);
    ::DispCallFunc(&object, static_cast<ULONG_PTR>(function.oVft), CC_STDCALL, VT_ERROR, count, types, arguments,
                   &result);
    return result.scode != RPC_E_WRONG_THREAD;
}

// The members of an interface in the order of their slots, behind those of IDispatch; "=" is a put, "!" what serves
// this thread.
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
            slots[slot] = (function->invkind == INVOKE_PROPERTYPUT ? L" =" : L" ") + std::wstring{name} +
                          (Serves(object, *function) ? L"!" : L"");
        ::SysFreeString(name);
        info->ReleaseFuncDesc(function);
    }
    info->Release();
    std::wstring text;
    for (const auto& [slot, member] : slots)
        text += member;
    return text;
}

TEST_F(Library, TheSlotsOfItsInterfacesKeepTheirOrderAndServeNoOtherThread)
{
    const std::tuple<CLSID, IID, const wchar_t*> interfaces[] = {
        {CLSID_Connect, __uuidof(_Connect), L" RibbonHandler GetEnabled GetLabel GetScreentip GetSupertip onLoad"},
        {CLSID_Connect, __uuidof(IDTExtensibility2),
         L" OnConnection OnDisconnection OnAddInsUpdate OnStartupComplete OnBeginShutdown"},
        {CLSID_Connect, __uuidof(IRibbonExtensibility), L" GetCustomUI"},
        {CLSID_CController, __uuidof(_CController), L" SaveAsAssignement SaveGateDoc SaveRelatedDoc"},
        {CLSID_CTraceLog, __uuidof(_CTraceLog),
         L" WriteError WriteEventStart WriteEventEnd GetTabs WriteVariable WriteLine bTimeStamp"},
        {CLSID_CRbnBtnInfo, __uuidof(_CRbnBtnInfo),
         L" ID =ID Label =Label ImageMso =ImageMso Screentip =Screentip Supertip =Supertip"
         L" GetEnabled =GetEnabled GetLabel =GetLabel GetSupertip =GetSupertip"
         L" GetScreentip =GetScreentip OnAction =OnAction Description =Description Size =Size Clear"},
        {CLSID_CSaveResult, __uuidof(_CSaveResult),
         L" Outcome ErrorNumber ErrorDescription Server ProjectID DeliverableID ActivityID RelatedDocumentID"
         L" GateDocumentID VersionLink UploadedName"},
    };
    for (const auto& [id, face, expected] : interfaces) {
        auto* made = Loaded().Create<IUnknown>(id);
        std::wstring slots;
        std::thread{[made, &slots, wanted = face] {
            IDispatch* object = nullptr;
            made->QueryInterface(wanted, reinterpret_cast<void**>(&object));
            slots = SlotsOf(*object);
            object->Release();
        }}.join();
        EXPECT_EQ(slots, expected);
        made->Release();
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

// Calls a member as a compiled client does, by its place in the object's table of functions alone.
template<class... Arguments>
HRESULT CallSlot(const corvane::LateBound& object, std::size_t slot, Arguments... arguments)
{
    using Function = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, Arguments...);
    return reinterpret_cast<Function>((*reinterpret_cast<void***>(object.Get()))[slot])(object.Get(), arguments...);
}

TEST_F(Script, WritesAndReadsThePropertiesOfAButton)
{
    const auto button = Object(CLSID_CRbnBtnInfo);
    const wchar_t* const properties[] = {L"ID",           L"Label",      L"ImageMso",    L"Screentip",
                                         L"Supertip",     L"GetEnabled", L"GetLabel",    L"GetSupertip",
                                         L"GetScreentip", L"OnAction",   L"Description", L"Size"};
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
    std::size_t slot = 7;
    for (std::size_t index = 0; index < std::size(properties); ++index) {
        corvane::Bstr text;
        EXPECT_EQ(CallSlot(button, slot++, text.Put()), S_OK);
        EXPECT_EQ(CallSlot(button, slot++, corvane::Bstr{text.Text() + text.Text()}.Get()), S_OK);
    }
    EXPECT_EQ(all(), L"aabbccddeeffgghhiijjkkll");
    EXPECT_EQ(CallSlot(button, slot), S_OK);
    EXPECT_EQ(all(), L"bbddee") << "it keeps label and tips";
}

TEST_F(Script, MovesTheLevelOfATrace)
{
    const auto log = Object(CLSID_CTraceLog);
    const auto tabs = [&] {
        corvane::Bstr text;
        EXPECT_EQ(CallSlot(log, 10, text.Put()), S_OK);
        EXPECT_EQ(text.Text(), log.Call(L"GetTabs").Text());
        return text.Text();
    };
    VARIANT_BOOL stamped = VARIANT_FALSE;
    EXPECT_EQ(CallSlot(log, 13, &stamped), S_OK);
    EXPECT_EQ(stamped, VARIANT_TRUE);
    std::optional<corvane::Error> refusal;
    std::thread{[&] { refusal = corvane::Catch([&] { log.Call(L"WriteEventStart", L"Elsewhere"); }); }}.join();
    EXPECT_EQ(refusal.value().Number(), RPC_E_WRONG_THREAD);
    EXPECT_EQ(refusal.value().Description(),
              L"Corvane serves only the thread that it was started on. Please call it from there.");
    EXPECT_EQ(log.Text(L"bTimeStamp"), L"True");
    EXPECT_EQ(tabs(), L"\t");
    log.Call(L"WriteEventStart", L"Outer");
    EXPECT_EQ(CallSlot(log, 8, corvane::Bstr{L"Inner"}.Get()), S_OK);
    EXPECT_EQ(tabs(), L"\t\t\t");
    log.Call(L"WriteLine", L"a line", 1);
    log.Call(L"WriteVariable", L"Number", 5);
    log.Call(L"WriteError", 287, L"declined", L"Script");
    log.Call(L"WriteEventEnd", L"Inner");
    for (int level = 0; level < 2; ++level)
        EXPECT_EQ(CallSlot(log, 9, corvane::Bstr{L"Outer"}.Get()), S_OK);
    EXPECT_EQ(tabs(), L"");
}

TEST_F(Script, IsToldOfACommandWithoutAConnection)
{
    const auto controller = Object(CLSID_CController);
    std::size_t slot = 7;
    for (const std::wstring method : {L"SaveAsAssignement", L"SaveGateDoc", L"SaveRelatedDoc"}) {
        const auto tells = [&](auto&& call) {
            const MessageBoxAnswer box{L"CController." + method + L"\r\nObject variable or With block variable not set",
                                       L"CorvaneMSOffice"};
            call();
            EXPECT_TRUE(box.Appeared());
        };
        tells([&] { controller.Call(method.c_str()); });
        tells([&] { EXPECT_EQ(CallSlot(controller, slot++), S_OK); });
    }
}

TEST_F(Script, CallsBackIntoAConnectionBySlot)
{
    const auto connection = Object(CLSID_Connect);
    IDispatch* const none = nullptr;
    VARIANT_BOOL enabled = VARIANT_TRUE;
    EXPECT_EQ(CallSlot(connection, 8, none, &enabled), S_OK);
    EXPECT_EQ(enabled, VARIANT_FALSE);
    for (std::size_t slot = 9; slot < 12; ++slot)
        EXPECT_EQ(CallSlot(connection, slot, none, static_cast<BSTR*>(nullptr)), E_POINTER);
    const auto tells = [](const std::wstring& failing, auto&& call) {
        const MessageBoxAnswer box{L"ERROR\r\nNumber: 91\r\nDescription: Object variable or With block variable not set"
                                   L"\r\nSource: " +
                                   failing};
        EXPECT_EQ(call(), S_OK);
        EXPECT_TRUE(box.Appeared()) << testing::PrintToString(failing);
    };
    corvane::Variant result;
    tells(L"Id", [&] { return CallSlot(connection, 7, none); });
    tells(L"Version", [&] { return CallSlot(connection, 12, none, result.Put()); });
}

} // namespace
