// A document that lives in a file.
#pragma once

#include <objidl.h>

namespace host
{

class DocumentObject;

// A document of Word as an object that lives in a file: copies of it can be written. Part of its document, whose
// references it shares.
class PersistFile final : public IPersistFile
{
public:
    explicit PersistFile(DocumentObject& document) : m_document{document} {}

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetClassID(CLSID*) override { return E_NOTIMPL; }
    STDMETHODIMP IsDirty() override;
    STDMETHODIMP Load(LPCOLESTR, DWORD) override { return E_NOTIMPL; }
    // Only copies: the document stays where it is.
    STDMETHODIMP Save(LPCOLESTR path, BOOL remember) override;
    STDMETHODIMP SaveCompleted(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP GetCurFile(LPOLESTR*) override { return E_NOTIMPL; }

private:
    DocumentObject& m_document;
};

} // namespace host
