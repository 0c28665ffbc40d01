// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/page_setup_dialog.h"

#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

constexpr int kMargin = 16;
constexpr int kGap = 12;
constexpr QSize kDescriptionSize{360, 120};

struct MarginRow {
    const char* name;
    TextId words;
    std::int32_t PageMargins::*margin;
};
constexpr std::array<MarginRow, 4> kMarginRows{{
    {"marginTop", TextId::MarginTop, &PageMargins::top},
    {"marginBottom", TextId::MarginBottom, &PageMargins::bottom},
    {"marginLeft", TextId::MarginLeft, &PageMargins::left},
    {"marginRight", TextId::MarginRight, &PageMargins::right},
}};

struct ContentRow {
    const char* name;
    TextId words;
    bool PageSetup::*on;
};
constexpr std::array<ContentRow, 3> kContentRows{{
    {"includeLegend", TextId::IncludeLegend, &PageSetup::legend},
    {"includeSummary", TextId::IncludeSummary, &PageSetup::summary},
    {"includeDescription", TextId::IncludeDescription, &PageSetup::description},
}};

}  // namespace

PageSetupDialog::PageSetupDialog(const PageSetup& setup, const std::string& description,
                                 const Texts& texts, QWidget* parent)
    : QDialog(parent),
      texts_(texts),
      paper_(new QComboBox(this)),
      description_(new QPlainTextEdit(toQt(description), this)) {
    setObjectName("pageSetup");
    setWindowTitle(word(TextId::PageSetupTitle));
    paper_->setObjectName("paper");
    for (const Paper& paper : papers()) {
        paper_->addItem(toQt(paperText(paper, texts)));
        if (paper.key == setup.paper.key) {
            paper_->setCurrentIndex(paper_->count() - 1);
        }
    }
    auto* const paperRow = new QFormLayout;
    paperRow->addRow(word(TextId::PaperLabel), paper_);
    auto* const groups = new QGridLayout;
    groups->setSpacing(kGap);
    groups->addWidget(makeOrientation(setup.landscape), 0, 0);
    groups->addWidget(makeContents(setup), 1, 0);
    groups->addWidget(makeMargins(setup.margins), 0, 1, 2, 1);
    auto* const label = new QLabel(word(TextId::DescriptionLabel), this);
    label->setBuddy(description_);
    description_->setObjectName("description");
    description_->setTabChangesFocus(true);
    description_->setMinimumSize(kDescriptionSize);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(word(TextId::ButtonOk));
    buttons->button(QDialogButtonBox::Cancel)->setText(word(TextId::ButtonCancel));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addLayout(paperRow);
    column->addLayout(groups);
    column->addWidget(label);
    column->addWidget(description_, 1);
    column->addWidget(buttons);
    paper_->setFocus();
}

QString PageSetupDialog::word(TextId id) const {
    return toQt(texts_(id));
}

QGroupBox* PageSetupDialog::makeOrientation(bool landscape) {
    auto* const group = new QGroupBox(word(TextId::OrientationHeading), this);
    portrait_ = new QRadioButton(word(TextId::OrientationPortrait), group);
    portrait_->setObjectName("portrait");
    landscape_ = new QRadioButton(word(TextId::OrientationLandscape), group);
    landscape_->setObjectName("landscape");
    (landscape ? landscape_ : portrait_)->setChecked(true);
    auto* const column = new QVBoxLayout(group);
    column->addWidget(portrait_);
    column->addWidget(landscape_);
    return group;
}

QGroupBox* PageSetupDialog::makeMargins(const PageMargins& margins) {
    auto* const group = new QGroupBox(word(TextId::MarginsHeading), this);
    auto* const form = new QFormLayout(group);
    for (std::size_t i = 0; i < kMarginRows.size(); ++i) {
        auto* const box = new QSpinBox(group);
        box->setObjectName(kMarginRows[i].name);
        box->setRange(0, PageMargins::kMost);
        box->setSuffix(" mm");
        box->setValue(margins.*kMarginRows[i].margin);
        // The toolkit's menu speaks another language, and the arrows say the same.
        box->setContextMenuPolicy(Qt::PreventContextMenu);
        form->addRow(word(kMarginRows[i].words), box);
        margins_[i] = box;
    }
    return group;
}

QGroupBox* PageSetupDialog::makeContents(const PageSetup& setup) {
    auto* const group = new QGroupBox(word(TextId::IncludeHeading), this);
    auto* const column = new QVBoxLayout(group);
    for (std::size_t i = 0; i < kContentRows.size(); ++i) {
        contents_[i] = new QCheckBox(word(kContentRows[i].words), group);
        contents_[i]->setObjectName(kContentRows[i].name);
        contents_[i]->setChecked(setup.*kContentRows[i].on);
        column->addWidget(contents_[i]);
    }
    return group;
}

PageSetup PageSetupDialog::setup() const {
    PageSetup setup;
    setup.paper = papers()[static_cast<std::size_t>(std::max(0, paper_->currentIndex()))];
    setup.landscape = landscape_->isChecked();
    for (std::size_t i = 0; i < kMarginRows.size(); ++i) {
        setup.margins.*kMarginRows[i].margin = margins_[i]->value();
    }
    for (std::size_t i = 0; i < kContentRows.size(); ++i) {
        setup.*kContentRows[i].on = contents_[i]->isChecked();
    }
    return setup;
}

std::string PageSetupDialog::description() const {
    return toUtf8(description_->toPlainText());
}

}  // namespace campora
