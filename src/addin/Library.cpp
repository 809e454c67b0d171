// The library's entry points.
#include "addin/Registration.h"
#include "platform/ComObject.h"
#include "platform/Procedure.h"

#include <olectl.h>

namespace corvane
{
namespace
{

// Makes objects of one public class.
class ClassFactory final : public ComObject<ClassFactory, IClassFactory>
{
public:
    explicit ClassFactory(const PublicClass& entry) noexcept : m_class{entry} {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override
    {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        return outer != nullptr ? CLASS_E_NOAGGREGATION : m_class.create(id, object);
    }
    STDMETHODIMP LockServer(BOOL lock) noexcept override
    {
        lock ? Library::AddObject() : Library::RemoveObject();
        return S_OK;
    }

private:
    const PublicClass& m_class;
};

} // namespace
} // namespace corvane

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
    HRESULT result = E_OUTOFMEMORY;
    corvane::Ignoring([&] { result = corvane::MakeObject<corvane::ClassFactory>(*entry)->QueryInterface(id, object); });
    return result;
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
