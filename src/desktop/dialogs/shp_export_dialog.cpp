// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/shp_export_dialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

#include "base/file_endings.h"
#include "base/paths.h"
#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"
#include "platform/file_filter.h"

namespace campora {

namespace {

constexpr QSize kSize{620, 460};
constexpr int kMargin = 16;
constexpr int kGap = 12;
constexpr int kRemark = Qt::UserRole;

}  // namespace

ShpExportDialog::ShpExportDialog(const OpenMap& map, Clock& clock, QWidget* parent)
    : QDialog(parent),
      map_(map),
      clock_(clock),
      run_(map),
      txtOrig_(new QLineEdit(this)),
      txtDest_(new QLineEdit(this)),
      expAll_(new QRadioButton(word(TextId::ExportEverything), this)),
      expFum_(new QRadioButton(word(TextId::ExportOnlySprayed), this)),
      slider_(new QSlider(Qt::Horizontal, this)),
      msgs_(new QListWidget(this)),
      remark_(new QLabel(this)),
      cmdExport_(new QPushButton(word(TextId::ButtonExport), this)),
      cmdCancel_(new QPushButton(word(TextId::ButtonCancel), this)) {
    setObjectName("ShpExportDialog");
    setWindowTitle(word(TextId::ShpExportTitle));
    msgs_->setObjectName("msgs");
    msgs_->setAccessibleName(word(TextId::ExportMessages));
    remark_->setTextFormat(Qt::PlainText);
    remark_->setWordWrap(true);
    remark_->setObjectName("lblRemark");
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addLayout(makePaths());
    column->addWidget(makeOptions());
    column->addWidget(msgs_, 1);
    column->addWidget(remark_);
    column->addLayout(makeButtons());
    resize(kSize);
    connect(msgs_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        remark_->setText(item == nullptr ? QString() : item->data(kRemark).toString());
    });
    run_.onBegin = [this](const std::string& line) {
        msgs_->addItem(shownName(line));
        msgs_->scrollToBottom();
        clock_.processEvents();
    };
    run_.onDone = [this](const std::string& line, const TrackExportOutcome& outcome) {
        showDone(line, outcome);
        clock_.processEvents();
    };
}

QString ShpExportDialog::word(TextId id) const {
    return toQt(map_.desk().texts(id));
}

QPushButton* ShpExportDialog::makeBrowse(TextId tip, void (ShpExportDialog::*browse)()) {
    auto* const button = new QPushButton(word(TextId::ButtonBrowse), this);
    button->setToolTip(word(tip));
    button->setAccessibleName(word(tip));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, browse);
    browses_.push_back(button);
    return button;
}

QLayout* ShpExportDialog::makePaths() {
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    const auto addRow = [&](int row, TextId caption, QLineEdit& box, QPushButton* browse) {
        auto* const label = new QLabel(word(caption), this);
        label->setBuddy(&box);
        box.setAccessibleName(word(caption));
        grid->addWidget(label, row, 0);
        grid->addWidget(&box, row, 1);
        grid->addWidget(browse, row, 2);
        connect(&box, &QLineEdit::textChanged, this, [this] { enableInputs(true); });
    };
    txtOrig_->setObjectName("txtOrig");
    txtDest_->setObjectName("txtDest");
    addRow(0, TextId::ExportSource, *txtOrig_,
           makeBrowse(TextId::TipBrowseSource, &ShpExportDialog::browseSource));
    addRow(1, TextId::ExportTarget, *txtDest_,
           makeBrowse(TextId::TipBrowseTarget, &ShpExportDialog::browseTarget));
    return grid;
}

QWidget* ShpExportDialog::makeOptions() {
    auto* const options = new QWidget(this);
    expAll_->setObjectName("expAll");
    expFum_->setObjectName("expFum");
    expAll_->setChecked(true);
    auto* const which = new QVBoxLayout;
    which->addWidget(expAll_);
    which->addWidget(expFum_);

    auto* const length = new QGroupBox(word(TextId::PolygonLength), options);
    auto* const shown = new QLabel(QString::number(kUsualPolygon), length);
    shown->setObjectName("lblSlider");
    shown->setMinimumWidth(shown->fontMetrics().horizontalAdvance("000"));
    shown->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    slider_->setObjectName("Slider1");
    slider_->setAccessibleName(word(TextId::PointsPerPolygon));
    slider_->setToolTip(word(TextId::PointsPerPolygon));
    slider_->setRange(kShortestPolygon, kLongestPolygon);
    slider_->setValue(kUsualPolygon);
    connect(slider_, &QSlider::valueChanged, shown, qOverload<int>(&QLabel::setNum));
    auto* const slide = new QHBoxLayout(length);
    slide->addWidget(slider_, 1);
    slide->addWidget(shown);

    auto* const row = new QHBoxLayout(options);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2 * kGap);
    row->addLayout(which);
    row->addWidget(length, 1);
    return options;
}

QLayout* ShpExportDialog::makeButtons() {
    cmdExport_->setObjectName("cmdExport");
    cmdExport_->setDefault(true);
    cmdCancel_->setObjectName("CmdCancel");
    cmdCancel_->setAutoDefault(false);
    connect(cmdExport_, &QPushButton::clicked, this, &ShpExportDialog::run);
    connect(cmdCancel_, &QPushButton::clicked, this, [this] { reject(); });
    auto* const row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdExport_);
    row->addWidget(cmdCancel_);
    return row;
}

void ShpExportDialog::enableInputs(bool enabled) {
    for (QWidget* input : {static_cast<QWidget*>(txtOrig_), static_cast<QWidget*>(txtDest_),
                           static_cast<QWidget*>(expAll_), static_cast<QWidget*>(expFum_),
                           static_cast<QWidget*>(slider_)}) {
        input->setEnabled(enabled);
    }
    for (QPushButton* button : browses_) {
        button->setEnabled(enabled);
    }
    cmdExport_->setEnabled(enabled && !txtOrig_->text().isEmpty() && !txtDest_->text().isEmpty());
}

void ShpExportDialog::exportList(const std::vector<std::string>& paths) {
    paths_ = paths;
    if (paths.size() == 1) {
        setSource(paths.front());
    } else {
        showList();
    }
    cmdExport_->setFocus();
    exec();
}

void ShpExportDialog::showList() {
    QStringList names;
    for (const std::string& path : paths_) {
        names += shownName(fileNamePart(path));
    }
    txtOrig_->setText(names.join("; "));
    txtDest_->setText(toQt(folderOf(paths_.front())));
    for (QLineEdit* box : {txtOrig_, txtDest_}) {
        box->setReadOnly(true);
        box->setCursorPosition(0);
    }
    for (QPushButton* button : browses_) {
        button->hide();
    }
}

bool ShpExportDialog::isAsProposed() const {
    return paths_.size() > 1 ||
           (toUtf8(txtOrig_->text()) == paths_.front() &&
            toUtf8(txtDest_->text()) == shapeBaseOf(paths_.front()).append(kShapeEnding));
}

void ShpExportDialog::setSource(const std::string& path) {
    txtOrig_->setText(toQt(path));
    txtDest_->setText(toQt(path.empty() ? path : shapeBaseOf(path).append(kShapeEnding)));
}

void ShpExportDialog::browseSource() {
    const std::vector<std::string> chosen =
        map_.desk().dialogs.openFiles({toUtf8(word(TextId::ExportFilesTitle)),
                                       folderOf(toUtf8(txtOrig_->text())),
                                       {trackFilter(map_.desk().texts)}});
    if (!chosen.empty()) {
        setSource(chosen.front());
    }
}

void ShpExportDialog::browseTarget() {
    const std::string present = toUtf8(txtDest_->text());
    const std::string chosen =
        map_.desk()
            .dialogs
            .saveFile({toUtf8(word(TextId::ExportTitle)),
                       folderOf(present),
                       std::string(fileNamePart(present)),
                       {fileFilter(map_.desk().texts, TextId::FilterShapePolygons, kShapeEnding)}})
            .path;
    if (!chosen.empty()) {
        txtDest_->setText(toQt(chosen));
    }
}

void ShpExportDialog::run() {
    run_.options.polygonLength = slider_->value();
    run_.options.onlySprayed = expFum_->isChecked();
    if (isAsProposed()) {
        runList();
        return;
    }
    {
        const PointerOverride busy(Qt::WaitCursor);
        run_.exportFiles(toUtf8(txtOrig_->text()), toUtf8(txtDest_->text()));
    }
    accept();
}

void ShpExportDialog::runList() {
    enableInputs(false);
    msgs_->clear();
    {
        const PointerOverride busy(Qt::BusyCursor);
        run_.exportList(paths_);
    }
    cmdExport_->hide();
    cmdCancel_->setText(word(TextId::ButtonClose));
    cmdCancel_->setFocus();
    if (closing_) {
        QDialog::reject();
    }
}

void ShpExportDialog::showDone(const std::string& line, const TrackExportOutcome& outcome) {
    QListWidgetItem* const item = msgs_->item(msgs_->count() - 1);
    item->setText(shownName(line));
    item->setData(kRemark, shownText(outcome.remark));
    item->setToolTip(plainToolTip(shownText(outcome.remark)));
    // The first failure is told below the list, the others when they are selected.
    if (!outcome.written && msgs_->currentItem() == nullptr) {
        msgs_->setCurrentItem(item);
    }
}

void ShpExportDialog::reject() {
    if (run_.isRunning()) {
        closing_ = true;
        run_.stop();
        return;
    }
    QDialog::reject();
}

}  // namespace campora
