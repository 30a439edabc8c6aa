#include "ComViewerAutomation.h"

#include <QString>
#include <QUuid>
#include <QVariant>

#include <VcModelViewerAutomation.h>
#include <windows.h>

#include <ActiveQt/QAxObject>

namespace Automation = VcModelViewerAutomation;

namespace {
// CLSCTX_INPROC_SERVER | CLSCTX_INPROC_HANDLER | CLSCTX_LOCAL_SERVER | CLSCTX_REMOTE_SERVER
constexpr DWORD kAnyServer = 23;
// LOCALE_SYSTEM_DEFAULT
constexpr LCID kLocale = 1024;

IDispatch* createServer(const QString& identifier)
{
    CLSID classId;
    if (FAILED(CLSIDFromProgID(reinterpret_cast<LPCOLESTR>(identifier.utf16()), &classId)))
        return nullptr;
    IDispatch* server = nullptr;
    if (FAILED(CoCreateInstance(classId, nullptr, kAnyServer, IID_IDispatch,
                                reinterpret_cast<void**>(&server))))
        return nullptr;
    return server;
}

// The server's viewer application (a reference the caller releases), or null.
IDispatch* applicationOf(IDispatch* server)
{
    const std::wstring property =
        QString::fromLatin1(Automation::applicationProperty).toStdWString();
    LPOLESTR name = const_cast<LPOLESTR>(property.c_str());
    DISPID propertyId = 0;
    if (FAILED(server->GetIDsOfNames(IID_NULL, &name, 1, kLocale, &propertyId)))
        return nullptr;
    DISPPARAMS none = {nullptr, nullptr, 0, 0};
    VARIANT result;
    VariantInit(&result);
    if (FAILED(server->Invoke(propertyId, IID_NULL, kLocale, DISPATCH_PROPERTYGET, &none, &result,
                              nullptr, nullptr)))
        return nullptr;
    if (result.vt != VT_DISPATCH || !result.pdispVal) {
        VariantClear(&result);
        return nullptr;
    }
    return result.pdispVal;
}

IDispatch* createApplication(const QString& identifier)
{
    IDispatch* server = createServer(identifier);
    if (!server)
        return nullptr;
    IDispatch* application = applicationOf(server);
    server->Release();
    return application;
}

BSTR automationString(const QByteArray& text)
{
    return SysAllocString(reinterpret_cast<const OLECHAR*>(QString::fromLatin1(text).utf16()));
}

// The six arguments as a dispatch call wants them: the last one first.
void fillReversed(VARIANT (&reversed)[6], const ViewerOpenArguments& arguments)
{
    const BSTR texts[4] = {automationString(arguments.path), automationString(arguments.viewerName),
                           automationString(arguments.reservedText1),
                           automationString(arguments.reservedText2)};
    const bool flags[2] = {arguments.reservedFlag1, arguments.reservedFlag2};
    for (int i = 0; i < 4; ++i) {
        VariantInit(&reversed[5 - i]);
        reversed[5 - i].vt = VT_BSTR;
        reversed[5 - i].bstrVal = texts[i];
    }
    for (int i = 0; i < 2; ++i) {
        VariantInit(&reversed[1 - i]);
        reversed[1 - i].vt = VT_BOOL;
        reversed[1 - i].boolVal = flags[i] ? VARIANT_TRUE : VARIANT_FALSE;
    }
}
} // namespace

bool ComViewerAutomation::isCreatable(const QString& identifier)
{
    IDispatch* application = createApplication(identifier);
    if (!application)
        return false;
    application->Release();
    return true;
}

bool ComViewerAutomation::openThroughInterface(const QString& identifier,
                                               const ViewerOpenArguments& arguments)
{
    QAxObject server(identifier);
    const QVariant none;
    QAxObject* application = server.querySubObject("GetVcModelViewApp()", none, none, none, none,
                                                   none, none, none, none);
    if (!application)
        return false;
    IUnknown* viewer = nullptr;
    const QUuid interfaceId(QString::fromLatin1(Automation::interfaceId));
    if (FAILED(application->queryInterface(interfaceId, reinterpret_cast<void**>(&viewer))) ||
        !viewer)
        return false;
    // The open method is slot 10 of the interface's table: after IUnknown's three and
    // IDispatch's four.
    using OpenMethod =
        HRESULT(STDMETHODCALLTYPE*)(IUnknown*, BSTR, BSTR, BSTR, BSTR, VARIANT_BOOL, VARIANT_BOOL);
    const auto open = reinterpret_cast<OpenMethod>(
        (*reinterpret_cast<void***>(viewer))[Automation::openInterfaceSlot]);
    BSTR texts[4] = {automationString(arguments.path), automationString(arguments.viewerName),
                     automationString(arguments.reservedText1),
                     automationString(arguments.reservedText2)};
    open(viewer, texts[0], texts[1], texts[2], texts[3],
         arguments.reservedFlag1 ? VARIANT_TRUE : VARIANT_FALSE,
         arguments.reservedFlag2 ? VARIANT_TRUE : VARIANT_FALSE);
    for (BSTR text : texts)
        SysFreeString(text);
    viewer->Release();
    return true;
}

bool ComViewerAutomation::openThroughDispatch(const QString& identifier,
                                              const ViewerOpenArguments& arguments)
{
    IDispatch* application = createApplication(identifier);
    if (!application)
        return false;
    VARIANT reversed[6];
    fillReversed(reversed, arguments);
    DISPPARAMS parameters = {reversed, nullptr, 6, 0};
    application->Invoke(Automation::openDispatchId, IID_NULL, kLocale, DISPATCH_METHOD, &parameters,
                        nullptr, nullptr, nullptr);
    for (VARIANT& argument : reversed)
        VariantClear(&argument);
    application->Release();
    return true;
}
