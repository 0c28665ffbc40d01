// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/work_orders_dialog.h"

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/paths.h"
#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

constexpr QSize kSize{820, 520};
constexpr int kFolderWidth = 280;
constexpr int kPreviewHeight = 110;
constexpr std::array kColumns = {TextId::OrderColumn, TextId::OrderDate, TextId::OrderStart,
                                 TextId::OrderFileCount};

TextId captionOf(OrderPreview preview) {
    switch (preview) {
    case OrderPreview::None:
        return TextId::NoPreview;
    case OrderPreview::Alone:
        return TextId::Preview;
    case OrderPreview::Adding:
        break;
    }
    return TextId::PreviewAdding;
}

QIcon iconOf(std::string_view name) {
    return QIcon(":/icons/" + toQt(name) + ".svg");
}

/// The drives of a system that has letters for them; elsewhere none.
QStringList driveNames() {
    QStringList names;
    for (const QFileInfo& drive : QDir::drives()) {
        if (drive.absolutePath() != "/") {
            names += drive.absolutePath();
        }
    }
    return names;
}

}  // namespace

WorkOrdersDialog::WorkOrdersDialog(OpenMap& map, MapDisplay& display, MapTools& tools,
                                   const Services& services, QWidget* parent)
    : QDialog(parent),
      texts_(map.desk().texts),
      clock_(services.clock),
      browser_(map, display, tools, services),
      model_(new QFileSystemModel(this)),
      drives_(new QComboBox(this)),
      folders_(new QTreeView(this)),
      orders_(new QTreeWidget(this)),
      comboPrev_(new QComboBox(this)),
      files_(new QListWidget(this)),
      progress_(new QProgressBar(this)) {
    setObjectName("frmOpenZEL");
    setWindowTitle(word(TextId::WorkOrders));
    auto* const split = new QSplitter(this);
    split->addWidget(makeFolders());
    split->addWidget(makeOrders());
    split->setStretchFactor(1, 1);
    split->setSizes({kFolderWidth, kSize.width() - kFolderWidth});
    split->setChildrenCollapsible(false);
    preview_ = makePreview();
    progress_->setObjectName("ProgressBar");
    progress_->setAccessibleName(word(TextId::OrderProgress));
    progress_->hide();
    auto* const column = new QVBoxLayout(this);
    column->addWidget(split, 1);
    column->addWidget(preview_);
    column->addWidget(progress_);
    column->addLayout(makeButtons());
    resize(kSize);
    enableButtons();
}

QString WorkOrdersDialog::word(TextId id) const {
    return toQt(texts_(id));
}

QWidget* WorkOrdersDialog::makeFolders() {
    model_->setFilter(QDir::AllDirs | QDir::Drives | QDir::NoDotAndDotDot);
    model_->setRootPath(QString());
    folders_->setObjectName("Dir1");
    folders_->setAccessibleName(word(TextId::OrderFolders));
    folders_->setModel(model_);
    folders_->setHeaderHidden(true);
    for (int i = 1; i < model_->columnCount(); ++i) {
        folders_->hideColumn(i);
    }
    drives_->setObjectName("Drive1");
    drives_->setAccessibleName(word(TextId::OrderDrive));
    drives_->addItems(driveNames());
    drives_->setVisible(drives_->count() > 0);
    connect(drives_, &QComboBox::textActivated, this, &WorkOrdersDialog::goTo);
    connect(folders_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { showFolder(model_->filePath(current)); });
    // The folders above the current one come later, and would push it out of sight.
    connect(model_, &QFileSystemModel::directoryLoaded, this, [this](const QString& loaded) {
        if (model_->filePath(folders_->currentIndex()).startsWith(loaded)) {
            folders_->scrollTo(folders_->currentIndex(), QTreeView::PositionAtCenter);
        }
    });
    auto* const part = new QWidget(this);
    auto* const column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(drives_);
    column->addWidget(folders_, 1);
    return part;
}

QWidget* WorkOrdersDialog::makeOrders() {
    orders_->setObjectName("fileList");
    orders_->setAccessibleName(word(TextId::WorkOrders));
    QStringList captions;
    for (const TextId caption : kColumns) {
        captions += word(caption);
    }
    orders_->setHeaderLabels(captions);
    orders_->setRootIsDecorated(false);
    orders_->setAllColumnsShowFocus(true);
    orders_->setUniformRowHeights(true);
    orders_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(orders_, &QTreeWidget::itemSelectionChanged, this, &WorkOrdersDialog::selectOrder);
    connect(orders_, &QTreeWidget::itemDoubleClicked, this, &WorkOrdersDialog::openOrder);
    return orders_;
}

QWidget* WorkOrdersDialog::makePreview() {
    auto* const part = new QWidget(this);
    auto* const caption = new QLabel(word(TextId::OrderPreview), part);
    caption->setBuddy(comboPrev_);
    comboPrev_->setObjectName("comboPrev");
    comboPrev_->setAccessibleName(word(TextId::OrderPreview));
    for (const OrderPreview choice : browser_.previewChoices()) {
        comboPrev_->addItem(word(captionOf(choice)));
    }
    connect(comboPrev_, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
        browser_.choosePreview(browser_.previewChoices().at(static_cast<std::size_t>(index)));
    });
    files_->setObjectName("orderFiles");
    files_->setAccessibleName(word(TextId::FilesOfOrder));
    files_->setFixedHeight(kPreviewHeight);
    auto* const row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(comboPrev_);
    row->addStretch();
    auto* const column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(files_);
    return part;
}

QLayout* WorkOrdersDialog::makeButtons() {
    cmdOpen_ =
        makeButton("cmdOpen", TextId::Open, TextId::TipOrderOpen, &WorkOrdersDialog::openOrder);
    cmdOpen_->setDefault(true);
    cmdAdd_ =
        makeButton("cmdAdd", TextId::AddEntry, TextId::TipOrderAdd, &WorkOrdersDialog::addOrder);
    cmdCopy_ = makeButton("cmdCopy", TextId::CopyOrder, TextId::TipOrderCopy,
                          &WorkOrdersDialog::copyOrder);
    cmdView_ = makeButton("cmdView", TextId::OrderPreview, TextId::TipOrderView,
                          &WorkOrdersDialog::toggleView);
    cmdView_->setText("<<");
    cmdView_->setAccessibleName(word(TextId::TipOrderView));
    auto* const cancel = new QPushButton(word(TextId::ButtonCancel), this);
    cancel->setObjectName("CmdCancel");
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &WorkOrdersDialog::reject);
    auto* const row = new QHBoxLayout;
    row->addWidget(cmdView_);
    row->addStretch();
    for (QPushButton* button : {cmdOpen_, cmdAdd_, cmdCopy_, cancel}) {
        row->addWidget(button);
    }
    return row;
}

QPushButton* WorkOrdersDialog::makeButton(const char* name, TextId text, TextId tip,
                                          Action action) {
    auto* const button = new QPushButton(word(text), this);
    button->setObjectName(name);
    button->setToolTip(word(tip));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void WorkOrdersDialog::showOpen(const std::string& path) {
    // When the window stands on the screen: a card may take its time.
    QTimer::singleShot(0, this, [this, path] { goTo(toQt(pathText(nativePath(path)))); });
    exec();
}

void WorkOrdersDialog::goTo(const QString& folder) {
    const QModelIndex index = model_->index(folder);
    drives_->setCurrentIndex(drives_->findText(folder.left(3), Qt::MatchFixedString));
    if (index == folders_->currentIndex()) {
        showFolder(folder);
        return;
    }
    folders_->setCurrentIndex(index);  // which shows it
    folders_->expand(index);
    folders_->scrollTo(index, QTreeView::PositionAtCenter);
}

void WorkOrdersDialog::showFolder(const QString& folder) {
    orders_->clear();
    files_->clear();
    if (browser_.showFolder(toUtf8(folder))) {
        showOrders();
    }
}

void WorkOrdersDialog::showOrders() {
    const QIcon icon = iconOf(kOrderIcon);
    for (const OrderRow& row : browser_.rows()) {
        auto* const item =
            new QTreeWidgetItem(orders_, {shownName(row.caption), shownName(row.date),
                                          shownName(row.startTime), shownName(row.fileCount)});
        item->setIcon(0, icon);
    }
    enableButtons();
}

void WorkOrdersDialog::selectOrder() {
    const QList<QTreeWidgetItem*> chosen = orders_->selectedItems();
    browser_.select(chosen.isEmpty() ? std::nullopt
                                     : std::optional(orders_->indexOfTopLevelItem(chosen.front())));
    files_->clear();
    if (const std::optional<int> row = browser_.selected()) {
        for (const std::string& file : browser_.orders()[static_cast<std::size_t>(*row)].files) {
            files_->addItem(shownName(fileNamePart(file)));
        }
    }
    enableButtons();
}

void WorkOrdersDialog::openOrder() {
    if (openFiles()) {
        accept();
    }
}

void WorkOrdersDialog::addOrder() {
    openFiles();
}

bool WorkOrdersDialog::openFiles() {
    if (busy_ || !browser_.selected()) {
        return false;
    }
    setBusy(true);
    class Bar final : public Progress {
    public:
        explicit Bar(WorkOrdersDialog& dialog) : dialog_(dialog) {}
        [[nodiscard]] bool report(int percent) override {
            dialog_.progress_->setValue(percent);
            dialog_.clock_.processEvents();
            return !dialog_.stopped_;
        }

    private:
        WorkOrdersDialog& dialog_;
    };
    Bar bar(*this);
    browser_.open(bar);
    setBusy(false);
    return !stopped_;
}

void WorkOrdersDialog::copyOrder() {
    browser_.copy();
}

void WorkOrdersDialog::toggleView() {
    preview_->setVisible(preview_->isHidden());
    cmdView_->setText(preview_->isHidden() ? ">>" : "<<");
}

void WorkOrdersDialog::setBusy(bool busy) {
    busy_ = busy;
    stopped_ = stopped_ && !busy;
    progress_->setValue(0);
    progress_->setVisible(busy);
    for (QWidget* part : {static_cast<QWidget*>(drives_), static_cast<QWidget*>(folders_),
                          static_cast<QWidget*>(orders_), preview_}) {
        part->setEnabled(!busy);
    }
    enableButtons();
}

void WorkOrdersDialog::enableButtons() {
    const bool ready = !busy_ && browser_.selected().has_value();
    for (QPushButton* button : {cmdOpen_, cmdAdd_, cmdCopy_}) {
        button->setEnabled(ready);
    }
}

void WorkOrdersDialog::reject() {
    if (busy_) {
        stopped_ = true;
        return;
    }
    browser_.cancel();
    QDialog::reject();
}

}  // namespace campora
