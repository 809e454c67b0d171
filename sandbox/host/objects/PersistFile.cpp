#include "objects/PersistFile.h"

#include "objects/DocumentObject.h"

namespace host
{

STDMETHODIMP PersistFile::QueryInterface(REFIID id, void** object) { return m_document.QueryInterface(id, object); }
STDMETHODIMP_(ULONG) PersistFile::AddRef() { return m_document.AddRef(); }
STDMETHODIMP_(ULONG) PersistFile::Release() { return m_document.Release(); }
STDMETHODIMP PersistFile::IsDirty() { return m_document.File().IsSaved() ? S_FALSE : S_OK; }

STDMETHODIMP PersistFile::Save(LPCOLESTR path, BOOL remember)
{
    if (path == nullptr || remember != FALSE) return E_INVALIDARG;
    const auto failure = corvane::Catch([&] { m_document.WriteCopy(path); });
    return failure ? failure->Number() : S_OK;
}

} // namespace host
