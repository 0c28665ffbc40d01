// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/compare_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/close_buttons.h"
#include "desktop/widgets/copied_table.h"

namespace campora {

namespace {

constexpr QSize kSize{880, 640};
constexpr int kMargin = 16;
constexpr int kGap = 8;

QComboBox* makeBox(const char* name, QWidget* parent) {
    auto* const box = new QComboBox(parent);
    box->setObjectName(name);
    // A long name must not make the dialog wider than the screen.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(30);
    return box;
}

QSpinBox* makeLimit(int percent, QWidget* parent) {
    auto* const box = new QSpinBox(parent);
    box->setObjectName("limit");
    box->setRange(0, kMostCompareLimit);
    box->setSuffix(" %");
    box->setValue(percent);
    // A number is looked at when it has been typed, not digit by digit.
    box->setKeyboardTracking(false);
    // The toolkit's menu speaks another language, and the arrows say the same.
    box->setContextMenuPolicy(Qt::PreventContextMenu);
    return box;
}

}  // namespace

CompareDialog::CompareDialog(CompareCommands& commands, const Texts& texts, Clipboard& clipboard,
                             QWidget* parent)
    : QDialog(parent),
      commands_(commands),
      texts_(texts),
      clipboard_(clipboard),
      jobs_(commands.jobs()),
      job_(makeBox("job", this)),
      prescription_(makeBox("prescription", this)),
      limit_(makeLimit(commands.limit(), this)),
      figures_(new CopiedTable("figures", toQt(texts(TextId::CompareFigures)), clipboard, this)),
      doses_(new CopiedTable("doses", toQt(texts(TextId::CompareDoses)), clipboard, this)),
      note_(new QLabel(this)) {
    setObjectName("compare");
    setWindowTitle(toQt(texts(TextId::CompareTitle)));
    for (const File* file : jobs_) {
        job_->addItem(shownName(file->File_name()));
    }
    arrange();
    connect(job_, &QComboBox::activated, this, [this] { showJob(); });
    connect(prescription_, &QComboBox::activated, this, [this](int index) {
        const CompareCommands::Choices choices = commands_.choices(*job());
        if (index >= 0 && static_cast<std::size_t>(index) < choices.all.size()) {
            commands_.choose(*job(), choices.all[static_cast<std::size_t>(index)].key);
        }
        showComparison();
    });
    connect(limit_, &QSpinBox::valueChanged, this, [this](int percent) {
        commands_.setLimit(percent);
        showComparison();
    });
    showJob();
    resize(kSize);
}

void CompareDialog::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !limit_->hasFocus()) {
        QDialog::keyPressEvent(event);
    }
}

QGridLayout* CompareDialog::choices() {
    auto* const grid = new QGridLayout;
    grid->setSpacing(kGap);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (const auto& [box, text] :
         {std::pair<QWidget*, TextId>(job_, TextId::CompareJob),
          std::pair<QWidget*, TextId>(prescription_, TextId::ComparePrescription),
          std::pair<QWidget*, TextId>(limit_, TextId::CompareLimit)}) {
        auto* const label = new QLabel(toQt(texts_(text)), this);
        label->setBuddy(box);
        box->setAccessibleName(toQt(texts_(text)).remove('&'));
        grid->addWidget(label, row, 0);
        grid->addWidget(box, row, 1);
        ++row;
    }
    return grid;
}

void CompareDialog::arrange() {
    note_->setObjectName("note");
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    auto* const buttons = new CloseButtons(texts_, this);
    buttons->addCopying("copyAll", toQt(texts_(TextId::CompareCopy)), [this] { copyAll(); });
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addLayout(choices());
    column->addWidget(figures_, 3);
    column->addWidget(new QLabel(toQt(texts_(TextId::CompareDoses)), this));
    column->addWidget(doses_, 2);
    column->addWidget(note_);
    column->addWidget(buttons);
}

const File* CompareDialog::job() const {
    return jobs_[static_cast<std::size_t>(job_->currentIndex())];
}

void CompareDialog::showJob() {
    const CompareCommands::Choices choices = commands_.choices(*job());
    prescription_->clear();
    for (const CompareCommands::Choice& choice : choices.all) {
        prescription_->addItem(shownName(choice.caption));
    }
    prescription_->setPlaceholderText(toQt(texts_(TextId::CompareNone)));
    prescription_->setCurrentIndex(choices.current ? static_cast<int>(*choices.current) : -1);
    showComparison();
}

void CompareDialog::showComparison() {
    const ComparisonTexts shown = commands_.compare(*job()).value_or(ComparisonTexts());
    figures_->setFigures(texts_, shown.figures);
    doses_->setContent(shown.columns, shown.rows, 0);
    note_->setText(toQt(shown.note.empty() ? texts_(TextId::CompareNone) : shown.note));
}

void CompareDialog::copyAll() {
    clipboard_.setText(toUtf8(job_->currentText() + "\n" + prescription_->currentText() + "\n\n") +
                       figures_->asText(false) + "\n" + doses_->asText(false));
}

}  // namespace campora
