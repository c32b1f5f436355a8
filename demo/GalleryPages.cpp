#include "GalleryPages.h"

#include "pages/ColourModesPage.h"
#include "pages/DrawingHelpersPage.h"
#include "pages/EntryPage.h"
#include "pages/HelmsmanPage.h"
#include "pages/LibraryPage.h"

std::vector<GalleryPage> GalleryPages()
{
    return {
        { QStringLiteral("Library"), QStringLiteral("library"), [](QWidget* parent) { return new LibraryPage(parent); } },
        { QStringLiteral("Drawing helpers"), QStringLiteral("drawing-helpers"), &CreateDrawingHelpersPage },
        { QStringLiteral("Colour modes"), QStringLiteral("colour-modes"), [](QWidget* parent) { return new ColourModesPage(parent); } },
        { QStringLiteral("Entry and measuring"), QStringLiteral("entry"), [](QWidget* parent) { return new EntryPage(parent); } },
        { QStringLiteral("Helmsman"), QStringLiteral("helmsman"), [](QWidget* parent) { return new HelmsmanPage(parent); } },
    };
}
