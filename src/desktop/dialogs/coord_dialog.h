// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <optional>

#include <QDialog>

#include "coord/coord_entry.h"
#include "platform/desk.h"

class QGridLayout;
class QLabel;
class QLayout;
class QLineEdit;

namespace campora {

/// Asks for a position. Its boxes stay within reach of the keyboard: Enter accepts, Esc cancels.
class CoordDialog final : public QDialog {
    Q_OBJECT

public:
    /// `form` and `position` are what it opens with.
    CoordDialog(QWidget* parent, const Desk& desk, CoordType form,
                std::optional<LonLat> position = std::nullopt);

    /// Opens the dialog modally; none when the user cancels.
    [[nodiscard]] std::optional<LonLat> showInput();
    /// The position in the boxes; none while one of them is wrong.
    [[nodiscard]] std::optional<LonLat> getPoint() const { return entry_.getPoint(); }

    void accept() override;

private:
    using Axis = CoordEntry::Axis;

    /// A box with the sign of its unit behind it.
    struct BoxWidgets {
        QLineEdit* edit = nullptr;
        QLabel* unit = nullptr;
    };

    [[nodiscard]] QWidget* makeForms();
    /// The boxes of an axis and its sign in one row of the grid.
    void addAxis(QGridLayout& grid, Axis axis);
    void addBox(QGridLayout& grid, int row, int column, CoordEntry::Box box);
    [[nodiscard]] QLayout* makeSigns(Axis axis);
    [[nodiscard]] QLayout* makeButtons();
    void edited(CoordEntry::Box box, const QString& text);
    /// Brings the widgets up to date with the entry.
    void showEntry();
    [[nodiscard]] QString word(TextId id) const;

    Desk desk_;
    CoordEntry entry_;
    std::array<BoxWidgets, CoordEntry::kBoxes> boxes_;
    QLabel* lblShowLat_;
    QLabel* lblShowLong_;
};

}  // namespace campora
