// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/coord_dialog.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

/// Behind dark text as easy to read as white, and no other place has it.
constexpr QRgb kWarningBackground = 0xFFFBDDD3;
constexpr int kMargin = 16;
constexpr int kGap = 12;
/// Room for "-59.9999999999", as positions are proposed; longer numbers scroll.
constexpr int kBoxCharacters = 15;
constexpr int kColumnsABox = 2;

struct BoxRow {
    const char* name;
    TextId words;
    const char* unit;
};
// In the order of CoordEntry::Box.
constexpr std::array<BoxRow, CoordEntry::kBoxes> kBoxRows{{
    {"txtLatG", TextId::CoordLatDegrees, "º"},
    {"txtLatM", TextId::CoordLatMinutes, "'"},
    {"txtLatS", TextId::CoordLatSeconds, "''"},
    {"txtLongG", TextId::CoordLongDegrees, "º"},
    {"txtLongM", TextId::CoordLongMinutes, "'"},
    {"txtLongS", TextId::CoordLongSeconds, "''"},
}};

struct FormRow {
    const char* name;
    TextId words;
    CoordType form;
};
constexpr std::array<FormRow, 3> kFormRows{{
    {"format1", TextId::CoordFormSeconds, CoordType::DegreesMinutesSeconds},
    {"format2", TextId::CoordFormMinutes, CoordType::DegreesMinutes},
    {"format3", TextId::CoordFormDegrees, CoordType::Degrees},
}};

struct SignRow {
    const char* name;
    TextId words;
    CoordEntry::Axis axis;
    bool negative;
};
constexpr std::array<SignRow, 4> kSignRows{{
    {"latSignP", TextId::CoordNorth, CoordEntry::Axis::Latitude, false},
    {"latSignN", TextId::CoordSouth, CoordEntry::Axis::Latitude, true},
    {"longSignP", TextId::CoordEast, CoordEntry::Axis::Longitude, false},
    {"longSignN", TextId::CoordWest, CoordEntry::Axis::Longitude, true},
}};

}  // namespace

CoordDialog::CoordDialog(QWidget* parent, const Desk& desk, CoordType form,
                         std::optional<LonLat> position)
    : QDialog(parent),
      desk_(desk),
      entry_(desk.texts, desk.locale, form),
      lblShowLat_(new QLabel(this)),
      lblShowLong_(new QLabel(this)) {
    if (position) {
        entry_.setPoint(*position);
    }
    setObjectName("frmCoord");
    setWindowTitle(word(TextId::CoordForms));
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap / 2);
    grid->setVerticalSpacing(kGap);
    addAxis(*grid, Axis::Latitude);
    addAxis(*grid, Axis::Longitude);
    lblShowLat_->setObjectName("lblShowLat");
    lblShowLong_->setObjectName("lblShowLong");

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(makeForms());
    column->addLayout(grid);
    column->addWidget(lblShowLat_);
    column->addWidget(lblShowLong_);
    column->addLayout(makeButtons());
    column->setSizeConstraint(QLayout::SetFixedSize);
    showEntry();
    boxes_.front().edit->setFocus();
    boxes_.front().edit->selectAll();
}

QString CoordDialog::word(TextId id) const {
    return toQt(desk_.texts(id));
}

QWidget* CoordDialog::makeForms() {
    auto* const frame = new QGroupBox(word(TextId::CoordForms), this);
    auto* const row = new QHBoxLayout(frame);
    for (const FormRow& form : kFormRows) {
        auto* const button = new QRadioButton(word(form.words), frame);
        button->setObjectName(form.name);
        button->setChecked(form.form == entry_.form());
        connect(button, &QRadioButton::toggled, this, [this, &form](bool on) {
            if (on) {
                entry_.setForm(form.form);
                showEntry();
            }
        });
        row->addWidget(button);
    }
    return frame;
}

void CoordDialog::addAxis(QGridLayout& grid, Axis axis) {
    const bool isLatitude = axis == Axis::Latitude;
    const int row = isLatitude ? 0 : 1;
    auto* const caption = new QLabel(word(isLatitude ? TextId::Latitude : TextId::Longitude), this);
    grid.addWidget(caption, row, 0);
    const int first =
        static_cast<int>(isLatitude ? CoordEntry::Box::LatDegrees : CoordEntry::Box::LongDegrees);
    for (int i = 0; i < 3; ++i) {
        addBox(grid, row, 1 + kColumnsABox * i, static_cast<CoordEntry::Box>(first + i));
    }
    caption->setBuddy(boxes_[static_cast<std::size_t>(first)].edit);
    grid.addLayout(makeSigns(axis), row, 1 + kColumnsABox * 3);
    grid.setColumnStretch(1 + kColumnsABox * 3, 1);
}

void CoordDialog::addBox(QGridLayout& grid, int row, int column, CoordEntry::Box box) {
    const auto index = static_cast<std::size_t>(box);
    const BoxRow& look = kBoxRows[index];
    auto* const edit = new QLineEdit(toQt(entry_.text(box)), this);
    edit->setObjectName(look.name);
    edit->setAccessibleName(word(look.words));
    edit->setToolTip(word(look.words));
    edit->setAlignment(Qt::AlignRight);
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance('0') * kBoxCharacters);
    connect(edit, &QLineEdit::textChanged, this,
            [this, box](const QString& text) { edited(box, text); });
    auto* const unit = new QLabel(look.unit, this);
    boxes_[index] = {edit, unit};
    grid.addWidget(edit, row, column);
    grid.addWidget(unit, row, column + 1);
}

QLayout* CoordDialog::makeSigns(Axis axis) {
    auto* const row = new QHBoxLayout;
    row->addSpacing(kGap);
    auto* const group = new QButtonGroup(this);
    for (const SignRow& sign : kSignRows) {
        if (sign.axis != axis) {
            continue;
        }
        auto* const button = new QRadioButton(word(sign.words), this);
        button->setObjectName(sign.name);
        button->setChecked(sign.negative == entry_.isNegative(axis));
        group->addButton(button);
        connect(button, &QRadioButton::toggled, this, [this, &sign](bool on) {
            if (on) {
                entry_.setNegative(sign.axis, sign.negative);
                showEntry();
            }
        });
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

QLayout* CoordDialog::makeButtons() {
    auto* const row = new QHBoxLayout;
    auto* const ok = new QPushButton(word(TextId::ButtonOk), this);
    ok->setObjectName("cmdAcept");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* const cancel = new QPushButton(word(TextId::ButtonCancel), this);
    cancel->setObjectName("CmdCancel");
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    return row;
}

void CoordDialog::edited(CoordEntry::Box box, const QString& text) {
    entry_.setText(box, toUtf8(text));
    showEntry();
}

void CoordDialog::showEntry() {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const auto box = static_cast<CoordEntry::Box>(i);
        const auto [edit, unit] = boxes_[i];
        const QString text = toQt(entry_.text(box));
        if (edit->text() != text) {
            const int cursor = edit->cursorPosition();
            const QSignalBlocker quiet(edit);
            edit->setText(text);
            edit->setCursorPosition(cursor);
        }
        edit->setVisible(entry_.isShown(box));
        unit->setVisible(entry_.isShown(box));
        const bool wrong = entry_.isWrong(box);
        QPalette colors = palette();
        if (wrong) {
            colors.setColor(QPalette::Base, QColor(kWarningBackground));
        }
        edit->setPalette(colors);
        edit->setAccessibleDescription(wrong ? word(TextId::CoordInvalid) : QString());
    }
    lblShowLat_->setText(toQt(entry_.readBack(Axis::Latitude)));
    lblShowLong_->setText(toQt(entry_.readBack(Axis::Longitude)));
}

std::optional<LonLat> CoordDialog::showInput() {
    const PointerOverride arrow(Qt::ArrowCursor);
    return exec() == Accepted ? getPoint() : std::nullopt;
}

void CoordDialog::accept() {
    if (getPoint()) {
        QDialog::accept();
        return;
    }
    desk_.titled(TextId::Error).tell({TextId::CoordInvalid, {}});
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        if (entry_.isWrong(static_cast<CoordEntry::Box>(i))) {
            boxes_[i].edit->setFocus();
            boxes_[i].edit->selectAll();
            return;
        }
    }
}

}  // namespace campora
