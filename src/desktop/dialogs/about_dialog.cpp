// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/about_dialog.h"

#include <string>

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSysInfo>

#include "campora_version.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/close_buttons.h"

namespace campora {

namespace {

constexpr int kMargin = 20;
constexpr int kGap = 10;
constexpr int kIcon = 64;
constexpr int kTextWidth = 380;
constexpr int kDetailLines = 4;

/// What a report of a fault should say; the same in every language.
QString details() {
    return toQt(std::string("Campora ").append(kVersion)) + "\nQt " + qVersion() +
           "\nClipper " CAMPORA_CLIPPER_VERSION "\n" + QSysInfo::prettyProductName() + ", " +
           QSysInfo::currentCpuArchitecture();
}

QLabel* line(const QString& text, QWidget* parent) {
    auto* const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPlainTextEdit* detailsBox(const QString& name, QWidget* parent) {
    auto* const box = new QPlainTextEdit(details(), parent);
    box->setObjectName("details");
    box->setAccessibleName(name);
    box->setReadOnly(true);
    box->setTabChangesFocus(true);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    constexpr int kSpare = 8;
    const int frame =
        2 * (box->frameWidth() + static_cast<int>(box->document()->documentMargin())) + kSpare;
    box->setFixedHeight(kDetailLines * box->fontMetrics().lineSpacing() + frame);
    return box;
}

}  // namespace

AboutDialog::AboutDialog(const Texts& texts, Clipboard& clipboard, QWidget* parent)
    : QDialog(parent) {
    setObjectName("about");
    setWindowTitle(toQt(texts(TextId::AboutTitle)));
    auto* const icon = new QLabel(this);
    icon->setPixmap(QIcon(":/icons/campora.svg").pixmap(QSize(kIcon, kIcon), devicePixelRatioF()));
    auto* const name = line(toQt(texts(TextId::ProgramName)), this);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    name->setFont(large);
    auto* const version =
        line(toQt(texts.format(TextId::AboutVersion, {std::string(kVersion)})), this);
    auto* const sentence = line(toQt(texts(TextId::AboutSentence)), this);
    sentence->setMinimumWidth(kTextWidth);
    auto* const licence =
        line(toQt(texts(TextId::AboutLicence)) + "\n© 2026 The Campora developers", this);
    auto* const buttons = new CloseButtons(texts, this);
    buttons->addCopying("copyVersion", toQt(texts(TextId::AboutCopy)),
                        [&clipboard] { clipboard.setText(toUtf8(details())); });

    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kGap);
    grid->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(name, 0, 1);
    grid->addWidget(version, 1, 1);
    grid->addWidget(sentence, 2, 1);
    grid->addWidget(licence, 3, 1);
    grid->addWidget(detailsBox(toQt(texts(TextId::AboutDetails)), this), 4, 1);
    grid->addWidget(buttons, 5, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    buttons->button(QDialogButtonBox::Close)->setFocus();
}

}  // namespace campora
