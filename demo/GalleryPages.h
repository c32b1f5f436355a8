#pragma once
// The pages of QelGallery, one per subsystem of the library.

#include <QString>
#include <functional>
#include <vector>

class QWidget;

struct GalleryPage {
    QString title;   // shown in the page list
    QString slug;    // file name of the page's screenshot
    std::function<QWidget*(QWidget* parent)> create;
};

// Every page, in the order of the page list.
std::vector<GalleryPage> GalleryPages();
