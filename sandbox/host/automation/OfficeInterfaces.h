// The add-in interfaces of Office, in the order of their virtual tables, and the ids of its objects.
#pragma once

#include <windows.h>

#include <oaidl.h>

namespace host
{

// The dispatch ids of these equal the order of their methods, from 1.

struct IDTExtensibility2 : IDispatch
{
    virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, LONG connectMode, IDispatch* addInInst,
                                                   SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnDisconnection(LONG removeMode, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;
};

struct IRibbonExtensibility : IDispatch
{
    virtual HRESULT STDMETHODCALLTYPE GetCustomUI(BSTR ribbonId, BSTR* xml) = 0;
};

struct IRibbonUI : IDispatch
{
    virtual HRESULT STDMETHODCALLTYPE Invalidate() = 0;
    virtual HRESULT STDMETHODCALLTYPE InvalidateControl(BSTR id) = 0;
    virtual HRESULT STDMETHODCALLTYPE InvalidateControlMso(BSTR id) = 0;
    virtual HRESULT STDMETHODCALLTYPE ActivateTab(BSTR id) = 0;
    virtual HRESULT STDMETHODCALLTYPE ActivateTabMso(BSTR id) = 0;
    virtual HRESULT STDMETHODCALLTYPE ActivateTabQ(BSTR id, BSTR space) = 0;
};

struct IRibbonControl : IDispatch
{
    virtual HRESULT STDMETHODCALLTYPE get_Id(BSTR* id) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Context(IDispatch** context) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Tag(BSTR* tag) = 0;
};

constexpr IID OfficeId(ULONG first, USHORT second = 0, USHORT third = 0)
{
    return {first, second, third, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
}

constexpr IID PowerPointId(ULONG first)
{
    return {first, 0x5A91, 0x11CF, {0x87, 0x00, 0x00, 0xAA, 0x00, 0x60, 0x26, 0x3B}};
}

constexpr IID kComAddInId = OfficeId(0x000C033A);
constexpr IID kComAddInsId = OfficeId(0x000C0339);
constexpr IID kCommandBarsId = OfficeId(0x000C0302);
constexpr IID kCommandBarId = OfficeId(0x000C0304);
constexpr IID kCommandBarControlsId = OfficeId(0x000C0306);
constexpr IID kCommandBarControlId = OfficeId(0x000C0308);
constexpr IID kCommandBarPopupId = OfficeId(0x000C030A);
constexpr IID kCommandBarButtonId = OfficeId(0x000C030E);
constexpr IID kCommandBarButtonEventsId = OfficeId(0x000C0351);
constexpr IID kApplicationEventsId = PowerPointId(0x914934C2);
constexpr IID kApplicationId = PowerPointId(0x91493442);
constexpr IID kPresentationsId = PowerPointId(0x91493462);
constexpr IID kPresentationId = PowerPointId(0x9149349D);
constexpr IID kDocumentWindowId = PowerPointId(0x91493457);
constexpr IID kDocumentWindowsId = PowerPointId(0x91493455);
constexpr IID kDocumentPropertiesId{0x2DF8D04D, 0x5BFA, 0x101B, {0xBD, 0xE5, 0x00, 0xAA, 0x00, 0x44, 0xDE, 0x52}};
constexpr IID kDocumentPropertyId{0x2DF8D04E, 0x5BFA, 0x101B, {0xBD, 0xE5, 0x00, 0xAA, 0x00, 0x44, 0xDE, 0x52}};

} // namespace host

__CRT_UUID_DECL(host::IDTExtensibility2, 0xB65AD801, 0xABAF, 0x11D0, 0xBB, 0x8B, 0x00, 0xA0, 0xC9, 0x0F, 0x27, 0x44)
__CRT_UUID_DECL(host::IRibbonExtensibility, 0x000C0396, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46)
__CRT_UUID_DECL(host::IRibbonUI, 0x000C03A7, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46)
__CRT_UUID_DECL(host::IRibbonControl, 0x000C0395, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46)
