// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/widget_texts.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

struct Word {
    std::string_view source;
    TextId text;
};

constexpr Word kWords[] = {
    // Buttons
    {"OK", TextId::ButtonOk},
    {"Cancel", TextId::ButtonCancel},
    {"&Yes", TextId::ButtonYes},
    {"&No", TextId::ButtonNo},
    {"&Open", TextId::ButtonOpen},
    {"Open", TextId::Open},
    {"&Choose", TextId::ButtonChoose},
    // Open and save dialogs
    {"&Save", TextId::ButtonSave},
    {"%1 already exists.\nDo you want to replace it?", TextId::AskReplaceFile},
    {"Look in:", TextId::DialogLookIn},
    {"File &name:", TextId::DialogFileName},
    {"Files of type:", TextId::DialogFileType},
    {"Directory:", TextId::DialogFolder},
    {"Back", TextId::DialogBack},
    {"Go back", TextId::DialogBack},
    {"Forward", TextId::DialogForward},
    {"Go forward", TextId::DialogForward},
    {"Parent Directory", TextId::DialogParent},
    {"Go to the parent directory", TextId::DialogParent},
    {"Create New Folder", TextId::DialogNewFolder},
    {"Create a New Folder", TextId::DialogNewFolder},
    {"&New Folder", TextId::DialogNewFolder},
    {"List View", TextId::DialogListView},
    {"Change to list view mode", TextId::DialogListView},
    {"Detail View", TextId::DialogDetailView},
    {"Change to detail view mode", TextId::DialogDetailView},
    {"Sidebar", TextId::DialogPlaces},
    {"List of places and bookmarks", TextId::DialogPlaces},
    {"Files", TextId::FilesHeading},
    {"Name", TextId::DialogName},
    {"Size", TextId::DialogSize},
    {"Type", TextId::DialogKind},
    {"Kind", TextId::DialogKind},
    {"Folder", TextId::DialogFolderKind},
    {"File Folder", TextId::DialogFolderKind},
    {"Date Modified", TextId::DialogModified},
    {"Computer", TextId::DialogComputer},
    {"My Computer", TextId::DialogComputer},
    {"Recent Places", TextId::DialogRecent},
    {"&Rename", TextId::DialogRename},
    {"&Delete", TextId::DialogDelete},
    {"Remove", TextId::RemoveEntry},
    {"Show &hidden files", TextId::DialogHidden},
    {"Show ", TextId::DialogShow},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     TextId::DialogFileNotFound},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     TextId::DialogFolderNotFound},
    {"Save As", TextId::SaveAsTitle},
    // Colour dialog
    {"&Basic colors", TextId::ColorBasic},
    {"&Custom colors", TextId::ColorCustom},
    {"&Add to Custom Colors", TextId::ColorAddCustom},
    {"&Pick Screen Color", TextId::ColorPick},
    {"Hu&e:", TextId::ColorHue},
    {"&Sat:", TextId::ColorSaturation},
    {"&Val:", TextId::ColorValue},
    {"&Red:", TextId::ColorRed},
    {"&Green:", TextId::ColorGreen},
    {"Bl&ue:", TextId::ColorBlue},
    {"&HTML:", TextId::ColorHtml},
    // Text fields
    {"&Undo", TextId::EditUndo},
    {"&Redo", TextId::EditRedo},
    {"Cu&t", TextId::EditCut},
    {"&Copy", TextId::EditCopy},
    {"&Paste", TextId::EditPaste},
    {"Delete", TextId::EditDelete},
    {"Select All", TextId::EditSelectAll},
    // Keys
    {"Space", TextId::KeySpace},
    {"PgUp", TextId::KeyPageUp},
    {"PgDown", TextId::KeyPageDown},
    {"Are you sure you want to delete '%1'?", TextId::AskDeleteFile},
    {"'%1' is write protected.\nDo you want to delete it anyway?", TextId::AskDeleteProtected},
    {"Could not delete directory.", TextId::CannotDeleteFolder},
    {"Cursor at %1, %2\nPress ESC to cancel", TextId::PickColorHint},
    {"Del", TextId::KeyDelete},
    {"Shift", TextId::KeyShift},
    {"Up", TextId::KeyUp},
    {"Down", TextId::KeyDown},
};

}  // namespace

QString WidgetTexts::translate(const char* /*context*/, const char* source,
                               const char* /*disambiguation*/, int /*n*/) const {
    const auto* const word =
        std::find_if(std::begin(kWords), std::end(kWords),
                     [source](const Word& w) { return source != nullptr && w.source == source; });
    return word == std::end(kWords) ? QString() : toQt(texts_(word->text));
}

}  // namespace campora
