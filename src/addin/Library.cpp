// The library's entry points.
#include "addin/Registration.h"
#include "platform/ClassFactory.h"
#include "platform/Procedure.h"

#include <olectl.h>

using corvane::Catch;
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
    const corvane::PublicClass* entry = corvane::FindClass(classId);
    if (entry == nullptr) return CLASS_E_CLASSNOTAVAILABLE;
    return corvane::CreateObject<corvane::ClassFactory<decltype(entry->create)>>(id, object, entry->create);
}

STDAPI DllCanUnloadNow() { return Library::IsIdle() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer()
{
    return Catch([] { corvane::Register(); }) ? SELFREG_E_CLASS : S_OK;
}

STDAPI DllUnregisterServer()
{
    corvane::Unregister();
    return S_OK;
}
