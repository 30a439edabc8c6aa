// The product page's address for a language's folder, built here from the module's source:
// the English folder, written in any letter case, means the site's root; every other folder
// goes into the address as it is written.
#include "locale/ProductPage.h"

#include "TestPrinters.h"
#include "locale/LanguageEntry.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {
struct FolderCase
{
    const char* folder;
    // Between the web site's host and "/products-services/...".
    const char* segment;
};

void PrintTo(const FolderCase& each, std::ostream* out)
{
    *out << "folder \"" << each.folder << '"';
}

class ProductPageTest : public ::testing::TestWithParam<FolderCase>
{};

// Kept: docs/lifecycle.md, row "Doubled slash".
TEST_P(ProductPageTest, EnglishInAnyLetterCaseIsTheRootAndAnyOtherFolderStaysAsWritten)
{
    const LanguageEntry language(2, CFxString(), 31, true, QString::fromUtf8(GetParam().folder));
    for (const char* suffix : {"free-download", "latest-version"})
        EXPECT_EQ(productPageAddress(language, suffix),
                  "http://" EXTCOMMANDS_CORPORATE_HOST + QString::fromUtf8(GetParam().segment) +
                      "/products-services/quillon-cad-software/" + suffix);
}

INSTANTIATE_TEST_SUITE_P(Folders, ProductPageTest,
                         ::testing::Values(FolderCase{"english", ""}, FolderCase{"English", ""},
                                           FolderCase{"ENGLISH", ""}, FolderCase{"eNgLiSh", ""},
                                           FolderCase{"English/", ""},
                                           FolderCase{"englisch", "/englisch"},
                                           FolderCase{"English/uk", "/English/uk"},
                                           FolderCase{"Englishman", "/Englishman"},
                                           FolderCase{"German", "/German"}, FolderCase{"", "/"}));
} // namespace
