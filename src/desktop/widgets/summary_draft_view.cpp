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

SummaryDraftView::SummaryDraftView(SummaryDraft& draft, const Desk& desk, QWidget* parent)
    : QWidget(parent), draft_(draft), desk_(desk), list_(new QTreeWidget(this)) {
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
    connect(list_, &QTreeWidget::itemSelectionChanged, this, &SummaryDraftView::select);
    connect(list_, &QTreeWidget::itemClicked, this, &SummaryDraftView::select);
    showRows();
    showFields();
}

QWidget* SummaryDraftView::makeFields() {
    auto* const frame = new QGroupBox(toQt(desk_.texts(TextId::ModifyFrame)), this);
    auto* const form = new QFormLayout(frame);
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        fields_[i] = new QLineEdit(frame);
        fields_[i]->setObjectName(kFieldNames[i]);
        connect(fields_[i], &QLineEdit::returnPressed, this, &SummaryDraftView::change);
        form->addRow(toQt(desk_.texts(kCaptions[i])), fields_[i]);
    }
    return frame;
}

QWidget* SummaryDraftView::makeButtons() {
    auto* const part = new QWidget(this);
    auto* const column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(
        makeButton("cmdAdd", TextId::AddEntry, TextId::TipEntryAdd, &SummaryDraftView::add));
    rowButtons_ = {
        makeButton("cmdQuit", TextId::RemoveEntry, TextId::TipEntryRemove,
                   &SummaryDraftView::remove),
        makeButton("cmdChange", TextId::ChangeEntry, TextId::TipEntryChange,
                   &SummaryDraftView::change),
        makeButton("cmdUp", TextId::FileUp, TextId::TipEntryUp, &SummaryDraftView::up),
        makeButton("cmdDown", TextId::FileDown, TextId::TipEntryDown, &SummaryDraftView::down),
    };
    for (QPushButton* button : rowButtons_) {
        column->addWidget(button);
    }
    column->addStretch();
    return part;
}

QPushButton* SummaryDraftView::makeButton(const char* name, TextId text, TextId tip,
                                          Action action) {
    auto* const button = new QPushButton(toQt(desk_.texts(text)), this);
    button->setObjectName(name);
    button->setToolTip(toQt(desk_.texts(tip)));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void SummaryDraftView::add() {
    readFields();
    draft_.add();
    showRows();
}

void SummaryDraftView::acceptFields() {
    readFields();
    draft_.acceptFields();
    showRows();
}

void SummaryDraftView::remove() {
    askAndRemove(draft_, desk_);
    showRows();
}

void SummaryDraftView::change() {
    readFields();
    draft_.change();
    showRows();
}

void SummaryDraftView::up() {
    draft_.up();
    showRows();
}

void SummaryDraftView::down() {
    draft_.down();
    showRows();
}

void SummaryDraftView::select() {
    const QList<QTreeWidgetItem*> chosen = list_->selectedItems();
    draft_.select(chosen.isEmpty() ? std::nullopt
                                   : std::optional(list_->indexOfTopLevelItem(chosen.front())));
    for (QPushButton* button : rowButtons_) {
        button->setEnabled(!chosen.isEmpty());
    }
    if (!chosen.isEmpty()) {
        showFields();
    }
}

void SummaryDraftView::readFields() {
    draft_.fields = {toUtf8(fields_[0]->text()), toUtf8(fields_[1]->text()),
                     toUtf8(fields_[2]->text())};
}

void SummaryDraftView::showRows() {
    const std::optional<int> selected = draft_.selected();
    {
        const QSignalBlocker quiet(list_);
        list_->clear();
        for (const SummaryEntry& row : draft_.rows()) {
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

void SummaryDraftView::showFields() {
    fields_[0]->setText(toQt(draft_.fields.property));
    fields_[1]->setText(toQt(draft_.fields.value));
    fields_[2]->setText(toQt(draft_.fields.unit));
}

}  // namespace campora
