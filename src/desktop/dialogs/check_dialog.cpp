// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/check_dialog.h"

#include <utility>

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/numbers.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/close_buttons.h"
#include "desktop/widgets/copied_table.h"

namespace campora {

namespace {

constexpr QSize kSize{720, 600};
constexpr int kMargin = 16;
constexpr int kGap = 8;

}  // namespace

CheckDialog::CheckDialog(std::unique_ptr<PrescriptionCheckup> checkup, const Texts& texts,
                         Clipboard& clipboard, QWidget* parent)
    : QDialog(parent),
      checkup_(std::move(checkup)),
      texts_(texts),
      clipboard_(clipboard),
      verdict_(new QLabel(this)),
      warnings_(new CopiedTable("warnings", toQt(texts(TextId::CheckWarnings)), clipboard, this)),
      figures_(new CopiedTable("figures", toQt(texts(TextId::CompareFigures)), clipboard, this)) {
    setObjectName("check");
    setWindowTitle(toQt(texts(TextId::CheckTitle)));
    setAttribute(Qt::WA_DeleteOnClose);
    arrange();
    showPage();
    resize(kSize);
    figures_->setFocus();
}

QLineEdit* CheckDialog::field(const QString& accessibleName, const std::string& text) {
    auto* const line = new QLineEdit(toQt(text), this);
    line->setAccessibleName(accessibleName);
    return line;
}

QGridLayout* CheckDialog::wishes() {
    auto* const grid = new QGridLayout;
    grid->setSpacing(kGap);
    const QString caption = toQt(texts_(TextId::CheckTank));
    QLineEdit* const tank = field(QString(caption).remove('&'), checkup_->tank());
    tank->setObjectName("tank");
    auto* const label = new QLabel(caption, this);
    label->setBuddy(tank);
    grid->addWidget(label, 0, 0);
    grid->addWidget(tank, 0, 1);
    connect(tank, &QLineEdit::textChanged, this, [this](const QString& text) {
        checkup_->setTank(toUtf8(text));
        showPage();
    });
    for (int channel = 0; channel < checkup_->channels(); ++channel) {
        const Fields fields = addChannel(*grid, channel);
        const auto limitsTyped = [this, channel, fields] {
            checkup_->setLimits(channel, toUtf8(fields.least->text()), toUtf8(fields.most->text()));
            showPage();
        };
        connect(fields.least, &QLineEdit::textEdited, this, limitsTyped);
        connect(fields.most, &QLineEdit::textEdited, this, limitsTyped);
        connect(fields.product, &QLineEdit::textChanged, this,
                [this, channel, fields](const QString& name) {
                    checkup_->setProduct(channel, toUtf8(name));
                    fields.least->setText(toQt(checkup_->least(channel)));
                    fields.most->setText(toQt(checkup_->most(channel)));
                    showPage();
                });
    }
    return grid;
}

CheckDialog::Fields CheckDialog::addChannel(QGridLayout& grid, int channel) {
    const std::string number = numberText(channel + 1);
    const QString caption = toQt(texts_.format(TextId::CheckProductName, {number}));
    const auto named = [&](TextId text) { return toQt(texts_.format(text, {number})); };
    const Fields fields{field(caption, checkup_->product(channel)),
                        field(named(TextId::CheckLeastName), checkup_->least(channel)),
                        field(named(TextId::CheckMostName), checkup_->most(channel))};
    const int row = channel + 1;
    grid.addWidget(new QLabel(caption, this), row, 0);
    grid.addWidget(fields.product, row, 1);
    grid.addWidget(new QLabel(toQt(texts_(TextId::CheckLeast)), this), row, 2);
    grid.addWidget(fields.least, row, 3);
    grid.addWidget(new QLabel(toQt(texts_(TextId::CheckMost)), this), row, 4);
    grid.addWidget(fields.most, row, 5);
    return fields;
}

void CheckDialog::arrange() {
    verdict_->setObjectName("verdict");
    verdict_->setTextFormat(Qt::PlainText);
    verdict_->setWordWrap(true);
    QFont bold = verdict_->font();
    bold.setBold(true);
    verdict_->setFont(bold);
    auto* const buttons = new CloseButtons(texts_, this);
    buttons->addCopying("copyAll", toQt(texts_(TextId::CompareCopy)), [this] { copyAll(); });
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(verdict_);
    column->addWidget(warnings_, 2);
    column->addWidget(figures_, 3);
    column->addLayout(wishes());
    column->addWidget(buttons);
}

void CheckDialog::showPage() {
    const CheckPage page = checkup_->page();
    verdict_->setText(toQt(page.verdict));
    std::vector<std::vector<std::string>> warnings;
    for (const std::string& warning : page.warnings) {
        warnings.push_back({warning});
    }
    warnings_->setContent({std::string(texts_(TextId::CheckWarnings))}, warnings, 1);
    warnings_->horizontalHeader()->setStretchLastSection(true);
    figures_->setFigures(texts_, page.figures);
}

void CheckDialog::copyAll() {
    clipboard_.setText(toUtf8(verdict_->text()) + "\n\n" + warnings_->asText(false) + "\n" +
                       figures_->asText(false));
}

}  // namespace campora
