// The library's entry points.
#include "companion/Agreement.h"
#include "companion/Connection.h"
#include "platform/ClassFactory.h"
#include "platform/Procedure.h"

using corvane::Library;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH) {
        Library::SetModule(module);
        ::DisableThreadLibraryCalls(module);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** object)
{
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (corvane::GuidText(classId) != corvane::companion::kClassId) return CLASS_E_CLASSNOTAVAILABLE;
    const auto create = [](REFIID wanted, void** made) {
        return corvane::MakeObject<corvane::companion::Connection>()->QueryInterface(wanted, made);
    };
    HRESULT result = E_OUTOFMEMORY;
    corvane::Ignoring([&] {
        result = corvane::MakeObject<corvane::ClassFactory<decltype(create)>>(create)->QueryInterface(id, object);
    });
    return result;
}

STDAPI DllCanUnloadNow() { return Library::IsIdle() ? S_OK : S_FALSE; }
