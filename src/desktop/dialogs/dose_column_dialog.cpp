// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/dose_column_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "base/numbers.h"
#include "base/paths.h"
#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

constexpr int kMargin = 16;
constexpr int kGap = 12;
constexpr int kFileWidth = 190;
constexpr int kColumnWidth = 150;
constexpr int kProgressWidth = 110;

enum GridColumn { kCaption, kFile, kColumn, kDoses, kProgress };

/// A widget that keeps its place while it is hidden, so that nothing jumps.
void keepPlace(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

}  // namespace

DoseColumnDialog::DoseColumnDialog(const OpenMap& map, const Services& services, QWidget* parent)
    : QDialog(parent),
      map_(map),
      services_(services),
      columns_(map.desk()),
      grid_(new QGridLayout),
      progress_(new QProgressBar(this)) {
    setObjectName("frmDosisColumn");
    setWindowTitle(word(TextId::DosesTitle));
    grid_->setHorizontalSpacing(kGap);
    grid_->setVerticalSpacing(kGap / 2);
    for (int row = 0; row < kMostChannels; ++row) {
        addRow(*grid_, row);
    }
    grid_->setColumnStretch(kDoses, 1);
    progress_->setObjectName("progress");
    progress_->setAccessibleName(word(TextId::OpeningFiles));
    progress_->setFixedWidth(kProgressWidth);
    keepPlace(*progress_);
    progress_->hide();
    grid_->addWidget(progress_, 0, kProgress);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addLayout(grid_);
    column->addStretch();
    column->addLayout(makeButtons());
    columns_.onProgress = [this](int row, int percent) {
        showProgress(row, percent);
        services_.clock.processEvents();
    };
    showRows();
    rows_.front().cmdOpen->setFocus();
}

QString DoseColumnDialog::word(TextId id) const {
    return toQt(map_.desk().texts(id));
}

void DoseColumnDialog::addRow(QGridLayout& grid, int row) {
    RowWidgets& widgets = rows_[static_cast<std::size_t>(row)];
    const QString caption = toQt(columns_.caption(row));
    widgets.lblChannel = new QLabel(caption, this);
    widgets.lblChannel->setObjectName("lblChannel");
    widgets.cmdOpen = makeButton("cmdOpen", TextId::Open);
    widgets.cmdOpen->setFixedWidth(kFileWidth);
    widgets.cbDosis = new QComboBox(this);
    widgets.cbDosis->setObjectName("cbDosis");
    widgets.cbDosis->setMinimumWidth(kColumnWidth);
    widgets.cbDosis->setAccessibleName(
        toQt(map_.desk().texts.format(TextId::SummaryChannelColumn, {numberText(row + 1)})));
    widgets.lblNumDosis = new QLabel(this);
    widgets.lblNumDosis->setObjectName("lblNumDosis");
    widgets.lblNumDosis->setTextFormat(Qt::PlainText);
    widgets.lblNumDosis->setMinimumWidth(
        fontMetrics().horizontalAdvance(word(TextId::DosesNotNumeric)));
    grid.addWidget(widgets.lblChannel, row, kCaption);
    grid.addWidget(widgets.cmdOpen, row, kFile);
    grid.addWidget(widgets.cbDosis, row, kColumn);
    grid.addWidget(widgets.lblNumDosis, row, kDoses);
    connect(widgets.cmdOpen, &QPushButton::clicked, this, [this, row] { chooseFile(row); });
    connect(widgets.cbDosis, &QComboBox::currentIndexChanged, this, [this, row](int index) {
        columns_.chooseColumn(row, index + 1);
        showRow(row);
    });
}

QPushButton* DoseColumnDialog::makeButton(const char* name, TextId text) {
    auto* const button = new QPushButton(word(text), this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QLayout* DoseColumnDialog::makeButtons() {
    cmdAdd_ = makeButton("cmdAdd", TextId::DosesAddChannel);
    cmdRemove_ = makeButton("cmdRemove", TextId::DosesRemoveChannel);
    cmdOk_ = makeButton("cmdOk", TextId::ButtonOk);
    cmdOk_->setDefault(true);
    cmdCancel_ = makeButton("cmdCancel", TextId::ButtonCancel);
    connect(cmdAdd_, &QPushButton::clicked, this, [this] {
        columns_.addChannel();
        showRows();
    });
    connect(cmdRemove_, &QPushButton::clicked, this, [this] {
        columns_.removeChannel();
        showRows();
    });
    connect(cmdOk_, &QPushButton::clicked, this, [this] { accept(); });
    connect(cmdCancel_, &QPushButton::clicked, this, [this] { reject(); });
    auto* const row = new QHBoxLayout;
    row->addWidget(cmdAdd_);
    row->addWidget(cmdRemove_);
    row->addStretch();
    row->addWidget(cmdOk_);
    row->addWidget(cmdCancel_);
    return row;
}

void DoseColumnDialog::chooseFile(int row) {
    columns_.chooseFile(row, services_.settings, map_.programFolder());
    RowWidgets& widgets = rows_[static_cast<std::size_t>(row)];
    {
        const QSignalBlocker quiet(widgets.cbDosis);
        widgets.cbDosis->clear();
        for (const std::string& name : columns_.columns(row)) {
            widgets.cbDosis->addItem(shownName(name));
        }
        const int column = columns_.column(row);
        widgets.cbDosis->setCurrentIndex(column == GphPresc::kNoColumn ? -1 : column - 1);
    }
    progress_->hide();
    showRows();
    (widgets.cbDosis->isEnabled() ? static_cast<QWidget*>(widgets.cbDosis) : widgets.cmdOpen)
        ->setFocus();
}

void DoseColumnDialog::showProgress(int row, int percent) {
    if (progress_->isHidden() && percent < 100) {
        grid_->addWidget(progress_, row, kProgress);
        showRows();  // which are disabled now
    }
    progress_->setValue(percent);
    progress_->setVisible(percent < 100);
}

void DoseColumnDialog::showRows() {
    for (int row = 0; row < kMostChannels; ++row) {
        showRow(row);
    }
    cmdAdd_->setEnabled(columns_.canAdd());
    cmdRemove_->setEnabled(columns_.canRemove());
    cmdOk_->setEnabled(!columns_.isBusy());
    cmdCancel_->setEnabled(!columns_.isBusy());
}

void DoseColumnDialog::showRow(int row) {
    const auto& [lblChannel, cmdOpen, cbDosis, lblNumDosis] = rows_[static_cast<std::size_t>(row)];
    const bool exists = row < columns_.rowCount();
    for (QWidget* widget : {static_cast<QWidget*>(lblChannel), static_cast<QWidget*>(cmdOpen),
                            static_cast<QWidget*>(cbDosis), static_cast<QWidget*>(lblNumDosis)}) {
        keepPlace(*widget);
        widget->setVisible(exists);
    }
    if (!exists) {
        const QSignalBlocker quiet(cbDosis);  // its row is gone
        cbDosis->clear();
        return;
    }
    const std::string& path = columns_.path(row);
    const QString file = path.empty() ? word(TextId::Open) : toQt(fileNamePart(path));
    cmdOpen->setText(cmdOpen->fontMetrics()
                         .elidedText(file, Qt::ElideMiddle, kFileWidth - 2 * kGap)
                         .replace("&", "&&"));
    cmdOpen->setAccessibleName(lblChannel->text() + ' ' + file);
    cmdOpen->setToolTip(plainToolTip(shownName(path)));
    lblChannel->setToolTip(plainToolTip(shownName(path)));
    cmdOpen->setEnabled(!columns_.isBusy());
    cbDosis->setEnabled(!columns_.isBusy() && cbDosis->count() > 0);
    lblNumDosis->setText(toQt(columns_.doseLabel(row)));
}

std::vector<std::unique_ptr<GphPresc>> DoseColumnDialog::choose() {
    const PointerOverride arrow(Qt::ArrowCursor);
    if (exec() != Accepted) {
        return {};
    }
    return columns_.getChannels();
}

void DoseColumnDialog::accept() {
    const bool confirmed = columns_.confirm();
    progress_->hide();
    showRows();
    if (confirmed) {
        QDialog::accept();
    }
}

void DoseColumnDialog::reject() {
    if (!columns_.isBusy()) {
        QDialog::reject();
    }
}

}  // namespace campora
