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
    if (!path || remember) return E_INVALIDARG;
    try {
        m_document.WriteCopy(path);
        return S_OK;
    } catch (const Error& error) {
        return error.Number();
    }
}

} // namespace host
