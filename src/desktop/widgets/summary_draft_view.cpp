// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/summary_draft_view.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

constexpr std::array kCaptions = {TextId::SummaryProperty, TextId::SummaryValue,
                                  TextId::SummaryUnit};
constexpr std::array kFieldNames = {"txtCampo1", "txtCampo2", "txtCampo3"};

constexpr int kNarrowestColumn = 80;

}  // namespace

SummaryRowsView::SummaryRowsView(SummaryRows& rows, const Desk& desk, QWidget* parent)
    : QWidget(parent), rows_(rows), desk_(desk), list_(new QTreeWidget(this)) {
    list_->setObjectName("DataList");
    list_->setAccessibleName(toQt(desk.texts(TextId::SummaryHeading)));
    QStringList captions;
    for (const TextId caption : kCaptions) {
        captions += toQt(desk.texts(caption));
    }
    list_->setHeaderLabels(captions);
    list_->setRootIsDecorated(false);
    list_->setAllColumnsShowFocus(true);
    list_->setAlternatingRowColors(true);
    list_->header()->setSectionsMovable(false);
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    list_->header()->setMinimumSectionSize(kNarrowestColumn);
    auto* const upper = new QHBoxLayout;
    upper->addWidget(list_, 1);
    upper->addWidget(makeButtons());
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(upper, 1);
    column->addWidget(makeFields());
    connect(list_, &QTreeWidget::itemSelectionChanged, this, &SummaryRowsView::select);
    connect(list_, &QTreeWidget::itemClicked, this, &SummaryRowsView::select);
    showRows();
    showFields();
}

QWidget* SummaryRowsView::makeFields() {
    auto* const frame = new QGroupBox(toQt(desk_.texts(TextId::ModifyFrame)), this);
    auto* const form = new QFormLayout(frame);
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        fields_[i] = new QLineEdit(frame);
        fields_[i]->setObjectName(kFieldNames[i]);
        connect(fields_[i], &QLineEdit::returnPressed, this, &SummaryRowsView::change);
        form->addRow(toQt(desk_.texts(kCaptions[i])), fields_[i]);
    }
    return frame;
}

QWidget* SummaryRowsView::makeButtons() {
    auto* const part = new QWidget(this);
    auto* const column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(
        makeButton("cmdAdd", TextId::AddEntry, TextId::TipEntryAdd, &SummaryRowsView::add));
    rowButtons_ = {
        makeButton("cmdQuit", TextId::RemoveEntry, TextId::TipEntryRemove, &SummaryRowsView::quit),
        makeButton("cmdChange", TextId::ChangeEntry, TextId::TipEntryChange,
                   &SummaryRowsView::change),
        makeButton("cmdUp", TextId::FileUp, TextId::TipEntryUp, &SummaryRowsView::up),
        makeButton("cmdDown", TextId::FileDown, TextId::TipEntryDown, &SummaryRowsView::down),
    };
    for (QPushButton* button : rowButtons_) {
        column->addWidget(button);
    }
    column->addStretch();
    return part;
}

QPushButton* SummaryRowsView::makeButton(const char* name, TextId text, TextId tip, Action action) {
    auto* const button = new QPushButton(toQt(desk_.texts(text)), this);
    button->setObjectName(name);
    button->setToolTip(toQt(desk_.texts(tip)));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void SummaryRowsView::add() {
    readFields();
    rows_.add();
    showRows();
}

void SummaryRowsView::acceptFields() {
    readFields();
    rows_.acceptFields();
    showRows();
}

void SummaryRowsView::quit() {
    askAndRemove(rows_, desk_);
    showRows();
}

void SummaryRowsView::change() {
    readFields();
    rows_.change();
    showRows();
}

void SummaryRowsView::up() {
    rows_.up();
    showRows();
}

void SummaryRowsView::down() {
    rows_.down();
    showRows();
}

void SummaryRowsView::select() {
    const QList<QTreeWidgetItem*> chosen = list_->selectedItems();
    rows_.select(chosen.isEmpty() ? std::nullopt
                                  : std::optional(list_->indexOfTopLevelItem(chosen.front())));
    for (QPushButton* button : rowButtons_) {
        button->setEnabled(!chosen.isEmpty());
    }
    if (!chosen.isEmpty()) {
        showFields();
    }
}

void SummaryRowsView::readFields() {
    rows_.fields = {toUtf8(fields_[0]->text()), toUtf8(fields_[1]->text()),
                    toUtf8(fields_[2]->text())};
}

void SummaryRowsView::showRows() {
    const std::optional<int> selected = rows_.selected();
    {
        const QSignalBlocker quiet(list_);
        list_->clear();
        for (const SummaryEntry& row : rows_.rows()) {
            new QTreeWidgetItem(
                list_, {shownName(row.property), shownName(row.value), shownName(row.unit)});
        }
        if (selected) {
            list_->setCurrentItem(list_->topLevelItem(*selected));
        }
    }
    for (QPushButton* button : rowButtons_) {
        button->setEnabled(selected.has_value());
    }
}

void SummaryRowsView::showFields() {
    fields_[0]->setText(toQt(rows_.fields.property));
    fields_[1]->setText(toQt(rows_.fields.value));
    fields_[2]->setText(toQt(rows_.fields.unit));
}

}  // namespace campora
