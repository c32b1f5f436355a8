#include "GalleryPages.h"

#include "pages/ColourModesPage.h"
#include "pages/ColourTablesPage.h"
#include "pages/DrawingHelpersPage.h"
#include "pages/EntryPage.h"
#include "pages/HelmsmanPage.h"
#include "pages/LibraryPage.h"
#include "pages/SonarPage.h"

#include <QCoreApplication>

std::vector<GalleryPage> GalleryPages()
{
    return {
        { QCoreApplication::translate("GalleryPages", "Library"), QStringLiteral("library"), [](QWidget* parent) { return new LibraryPage(parent); } },
        { QCoreApplication::translate("GalleryPages", "Drawing helpers"), QStringLiteral("drawing-helpers"), &CreateDrawingHelpersPage },
        { QCoreApplication::translate("GalleryPages", "Colour modes"), QStringLiteral("colour-modes"), [](QWidget* parent) { return new ColourModesPage(parent); } },
        { QCoreApplication::translate("GalleryPages", "Entry and measuring"), QStringLiteral("entry"), [](QWidget* parent) { return new EntryPage(parent); } },
        { QCoreApplication::translate("GalleryPages", "Helmsman"), QStringLiteral("helmsman"), [](QWidget* parent) { return new HelmsmanPage(parent); } },
        { QCoreApplication::translate("GalleryPages", "Colour tables"), QStringLiteral("colour-tables"), [](QWidget* parent) { return new ColourTablesPage(parent); } },
        { QCoreApplication::translate("GalleryPages", "Sonar"), QStringLiteral("sonar"), [](QWidget* parent) { return new SonarPage(parent); } },
    };
}
