// The export marks as the Windows compiler sees them. Compiled once as a sibling module
// compiles the public headers (every library's mark imports) and once for each library with
// that library's own definitions (its own mark, EC_OWN_EXPORT_MARK, exports; the others import).
// Whatever the view, a module's entry points are exported.
#if defined(EC_PUBLIC_HEADERS)
#include EC_PUBLIC_HEADERS
#endif

#if __has_include(<ExtCommands/ExtCommandsExport.h>)
#include <ExtCommands/ExtCommandsExport.h>
#endif
#if __has_include(<FxKernelExport.h>)
#include <FxKernelExport.h>
#endif
#include <TD_DbExport.h>
#include <TD_RootExport.h>

#if defined(EC_PUBLIC_HEADERS) && !(defined(FX_KERNEL_EXPORT) && defined(EXTCOMMANDS_EXPORT))
#error "a sibling must see the export marks of the kernel and of the module"
#endif

namespace {
#define EC_SPELLING(...) EC_SPELLING_UNEXPANDED(__VA_ARGS__)
#define EC_SPELLING_UNEXPANDED(...) #__VA_ARGS__

// Spelt after expansion, as the marks are: MinGW's __declspec is itself a macro.
constexpr const char* kExport = EC_SPELLING(__declspec(dllexport));
constexpr const char* kImport = EC_SPELLING(__declspec(dllimport));

constexpr bool sameText(const char* a, const char* b)
{
    for (; *a && *a == *b; ++a, ++b) {
    }
    return *a == *b;
}

constexpr const char* expectedFor(const char* mark)
{
    return sameText(mark, EC_OWN_EXPORT_MARK) ? kExport : kImport;
}
} // namespace

#define EC_EXPECT_MARK(mark)                                                                       \
    static_assert(sameText(EC_SPELLING(mark), expectedFor(#mark)),                                 \
                  #mark " must export in its own library and import everywhere else")

EC_EXPECT_MARK(TD_ROOT_EXPORT);
EC_EXPECT_MARK(TD_DB_EXPORT);
#if defined(FX_KERNEL_EXPORT)
EC_EXPECT_MARK(FX_KERNEL_EXPORT);
#endif
#if defined(EXTCOMMANDS_EXPORT)
EC_EXPECT_MARK(EXTCOMMANDS_EXPORT);
#endif
static_assert(sameText(EC_SPELLING(ODRX_MODULE_EXPORT), kExport),
              "a module's entry points are exported");
