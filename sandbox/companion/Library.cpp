// The library's entry points.
#include "companion/Agreement.h"
#include "companion/Connection.h"
#include "platform/ClassFactory.h"

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
        return corvane::CreateObject<corvane::companion::Connection>(wanted, made);
    };
    return corvane::CreateObject<corvane::ClassFactory<decltype(create)>>(id, object, create);
}

STDAPI DllCanUnloadNow() { return Library::IsIdle() ? S_OK : S_FALSE; }
