// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/lot_panel.h"

#include <iterator>

#include <QAction>
#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/paths.h"
#include "desktop/dialogs/coord_dialog.h"
#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/elided_label.h"
#include "desktop/widgets/lot_keys.h"
#include "desktop/widgets/lot_vertex_model.h"
#include "desktop/widgets/section_heading.h"

namespace campora {

namespace {

/// Leaves the map its own least width in the smallest window.
constexpr int kWidth = 250;
constexpr int kSpacing = 4;
constexpr int kDescriptionRows = 3;
constexpr auto kWarningColor = "#B3261E";

bool hasVertex(const LotEditor& editor) {
    return editor.draft().selected().has_value();
}

}  // namespace

/// A button of the panel's tool bar.
struct LotPanel::Tool {
    const char* name;
    const char* icon;
    TextId text;
    /// Shown in its tooltip; what the keys do stands in `lotKeys`.
    const char* key;
    void (*run)(LotPanel& panel);
    bool (*possible)(const LotEditor& editor);

    static const Tool kTools[];
    static const std::size_t kCount;
};

const LotPanel::Tool LotPanel::Tool::kTools[] = {
    {"cmdLoteUndo", "undo", TextId::EditUndo, "Ctrl+Z", [](LotPanel& p) { p.editor_.undo(); },
     [](const LotEditor& e) { return e.draft().canUndo(); }},
    {"cmdLoteRedo", "redo", TextId::EditRedo, "Ctrl+Y", [](LotPanel& p) { p.editor_.redo(); },
     [](const LotEditor& e) { return e.draft().canRedo(); }},
    {"cmdLoteAdd", "vertex-add", TextId::LotAdd, "", [](LotPanel& p) { p.addVertex(); },
     [](const LotEditor&) { return true; }},
    {"cmdLoteMove", "vertex-edit", TextId::LotMove, "", [](LotPanel& p) { p.editVertex(); },
     hasVertex},
    {"cmdLoteInsert", "vertex-insert", TextId::LotInsert, "Ins",
     [](LotPanel& p) { p.editor_.insertAfterSelected(); }, hasVertex},
    {"cmdLoteDelete", "vertex-delete", TextId::LotDelete, "Del",
     [](LotPanel& p) { p.editor_.removeSelected(); }, hasVertex},
    {"cmdLoteClear", "clear", TextId::LotClear, "", [](LotPanel& p) { p.editor_.clear(); },
     [](const LotEditor& e) {
         return !e.draft().vertices().empty() || !e.draft().description().empty();
     }},
};
const std::size_t LotPanel::Tool::kCount = std::size(kTools);

LotPanel::LotPanel(Session& session, QWidget& map, QWidget* parent)
    : QWidget(parent),
      session_(session),
      editor_(session.lotEditor()),
      map_(map),
      title_(new ElidedLabel),
      close_(new QToolButton),
      tools_(new QToolBar),
      model_(new LotVertexModel(session.lotEditor(), session.tools(), session.texts(), this)),
      vertices_(new QTableView),
      figures_(new QLabel),
      warning_(new QLabel),
      descriptionLabel_(new QLabel),
      description_(new QPlainTextEdit),
      tooLong_(new QLabel),
      transparent_(new QCheckBox),
      save_(new QPushButton),
      saveBack_(new QPushButton),
      earth_(new QPushButton) {
    setObjectName("frmLote");
    setFixedWidth(kWidth);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kSpacing, kSpacing, 2 * kSpacing, kSpacing);
    column->setSpacing(kSpacing);
    makeHeader(*column);
    makeTools();
    column->addWidget(tools_);
    makeVertices();
    column->addWidget(vertices_, 1);
    column->addWidget(figures_);
    column->addWidget(warning_);
    makeDescription(*column);
    makeButtons(*column);
    map_.installEventFilter(this);
    vertices_->installEventFilter(this);
    editor_.onChanged = [this] { refresh(); };
}

LotPanel::~LotPanel() {
    editor_.onChanged = nullptr;
}

void LotPanel::makeHeader(QBoxLayout& column) {
    showAsHeading(*title_);
    close_->setObjectName("cmdLoteClose");
    close_->setIcon(QIcon(":/icons/close.svg"));
    close_->setAutoRaise(true);
    connect(close_, &QToolButton::clicked, this, [this] { editor_.close(); });
    auto* const row = new QHBoxLayout;
    row->addWidget(title_, 1);
    row->addWidget(close_);
    column.addLayout(row);
}

void LotPanel::makeTools() {
    tools_->setIconSize({18, 18});
    tools_->setContentsMargins(0, 0, 0, 0);
    for (const Tool& tool : Tool::kTools) {
        QAction* const made =
            tools_->addAction(QIcon(QString(":/icons/%1.svg").arg(tool.icon)), QString());
        made->setObjectName(tool.name);
        connect(made, &QAction::triggered, this, [this, &tool] { tool.run(*this); });
        tools_->widgetForAction(made)->setFocusPolicy(Qt::TabFocus);
        tools_->widgetForAction(made)->setObjectName(tool.name);
        actions_.push_back(made);
    }
}

void LotPanel::makeVertices() {
    vertices_->setModel(model_);
    vertices_->setObjectName("lstVertices");
    vertices_->setSelectionBehavior(QAbstractItemView::SelectRows);
    vertices_->setSelectionMode(QAbstractItemView::SingleSelection);
    vertices_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    vertices_->setTabKeyNavigation(false);
    vertices_->setAlternatingRowColors(true);
    vertices_->setShowGrid(false);
    vertices_->setCornerButtonEnabled(false);
    vertices_->setMinimumHeight(72);
    vertices_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    vertices_->horizontalHeader()->setHighlightSections(false);
    vertices_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    vertices_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    connect(vertices_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& now) {
                if (now.isValid()) {
                    editor_.select(static_cast<std::size_t>(now.row()));
                }
            });
    connect(vertices_, &QTableView::activated, this, [this] { editVertex(); });
}

void LotPanel::makeDescription(QBoxLayout& column) {
    figures_->setObjectName("lblLoteFigures");
    warning_->setObjectName("lblLoteWarning");
    warning_->setWordWrap(true);
    descriptionLabel_->setBuddy(description_);
    description_->setObjectName("txtLoteDescription");
    description_->setTabChangesFocus(true);
    description_->setFixedHeight(description_->fontMetrics().lineSpacing() * kDescriptionRows + 14);
    connect(description_, &QPlainTextEdit::textChanged, this, &LotPanel::descriptionEdited);
    column.addWidget(descriptionLabel_);
    column.addWidget(description_);
    tooLong_->setObjectName("lblLoteTooLong");
    tooLong_->setWordWrap(true);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, QColor(kWarningColor));
    tooLong_->setPalette(colors);
    tooLong_->hide();
    column.addWidget(tooLong_);
}

void LotPanel::makeButtons(QBoxLayout& column) {
    transparent_->setObjectName("chkLoteTransparent");
    transparent_->setChecked(editor_.isTransparent());
    connect(transparent_, &QCheckBox::toggled, this,
            [this](bool on) { editor_.setTransparent(on); });
    column.addWidget(transparent_);
    save_->setObjectName("cmdLoteSave");
    connect(save_, &QPushButton::clicked, this, [this] { editor_.save(); });
    saveBack_->setObjectName("cmdLoteSaveBack");
    connect(saveBack_, &QPushButton::clicked, this, [this] { editor_.saveBack(); });
    auto* const row = new QHBoxLayout;
    row->addWidget(save_, 1);
    row->addWidget(saveBack_, 1);
    column.addLayout(row);
    earth_->setObjectName("cmdLoteEarth");
    connect(earth_, &QPushButton::clicked, this, [this] {
        const PointerOverride busy(Qt::WaitCursor);
        editor_.viewInEarth();
    });
    column.addWidget(earth_);
}

void LotPanel::retranslate() {
    const Texts& texts = session_.texts();
    close_->setToolTip(toQt(texts(TextId::ButtonClose)));
    close_->setAccessibleName(toQt(texts(TextId::ButtonClose)));
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        const Tool& tool = Tool::kTools[i];
        const QString text = toQt(texts(tool.text)).remove('&');
        QString tip = text;
        if (*tool.key != 0) {
            tip += " (" + QKeySequence(tool.key).toString(QKeySequence::NativeText) + ")";
        }
        actions_[i]->setText(text);
        actions_[i]->setToolTip(tip);
        tools_->widgetForAction(actions_[i])->setAccessibleName(tip);
    }
    tools_->setAccessibleName(toQt(texts(TextId::LotTools)));
    vertices_->setAccessibleName(toQt(texts(TextId::LotVertices)));
    descriptionLabel_->setText(toQt(texts(TextId::LotDescription)));
    description_->setAccessibleName(toQt(texts(TextId::LotDescription)).remove('&'));
    tooLong_->setText(toQt(texts(TextId::LotTooManyLines)));
    transparent_->setText(toQt(texts(TextId::LotTransparent)));
    transparent_->setToolTip(toQt(texts(TextId::TipLotTransparent)));
    save_->setText(toQt(texts(TextId::LotSaveAs)));
    save_->setToolTip(toQt(texts(TextId::TipLotSaveAs)));
    saveBack_->setText(toQt(texts(TextId::LotSave)));
    earth_->setText(toQt(texts(TextId::LotEarth)));
    earth_->setToolTip(toQt(texts(TextId::TipLotEarth)));
    refresh();
}

void LotPanel::refresh() {
    const Texts& texts = session_.texts();
    const std::string_view path = editor_.draft().origin().path;
    const QString name = shownName(path.empty() ? texts(TextId::LotTitle) : fileNamePart(path));
    title_->setText(name);
    setAccessibleName(name);
    model_->refresh();
    showSelection();
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        actions_[i]->setEnabled(Tool::kTools[i].possible(editor_));
    }
    figures_->setText(editor_.isOpen() ? toQt(editor_.figures()) : QString());
    const bool crosses = editor_.crossesItself();
    QPalette colors = palette();
    if (crosses) {
        colors.setColor(QPalette::WindowText, QColor(kWarningColor));
    }
    warning_->setPalette(colors);
    warning_->setText(toQt(texts(crosses ? TextId::LotCrosses : TextId::LotHint)));
    showDescription();
    saveBack_->setEnabled(!path.empty());
    const QString tip = shownName(texts.format(TextId::TipLotSaveBack, {std::string(path)}));
    saveBack_->setToolTip(path.empty() ? QString() : plainToolTip(tip));
}

void LotPanel::showSelection() {
    const QSignalBlocker quiet(vertices_->selectionModel());
    const std::optional<std::size_t> selected = editor_.draft().selected();
    const QModelIndex index =
        selected ? model_->index(static_cast<int>(*selected), 0) : QModelIndex();
    if (index != vertices_->currentIndex() || !index.isValid()) {
        vertices_->setCurrentIndex(index);
        vertices_->viewport()->update();
    }
    if (index.isValid()) {
        vertices_->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
        vertices_->scrollTo(index);
    } else {
        vertices_->clearSelection();
    }
}

void LotPanel::showDescription() {
    const std::string& text = editor_.draft().description();
    tooLong_->setVisible(descriptionLines(text).size() > kLotDescriptionLines);
    QString shown;
    for (const std::string& line : descriptionLines(text)) {
        shown += (shown.isEmpty() ? "" : "\n") + toQt(line);
    }
    if (descriptionLines(toUtf8(description_->toPlainText())) != descriptionLines(text)) {
        const QSignalBlocker quiet(description_);
        description_->setPlainText(shown);
    }
}

void LotPanel::descriptionEdited() {
    // Never mended here: that would take the text from under the user's cursor, and what can be
    // undone with it.
    editor_.setDescription(toUtf8(description_->toPlainText()));
}

std::optional<LonLat> LotPanel::askPosition(LonLat proposed) {
    CoordDialog dialog(this, session_.map().desk(), session_.tools().coordType(), proposed);
    return dialog.showInput();
}

void LotPanel::addVertex() {
    // Most likely not far from what is there: signs and first digits are right then.
    const std::vector<LonLat>& vertices = editor_.draft().vertices();
    const LonLat near = vertices.empty() ? editor_.middleOfMap() : vertices.back();
    if (const std::optional<LonLat> position = askPosition(near)) {
        editor_.add(*position);
    }
}

void LotPanel::editVertex() {
    const std::optional<std::size_t> selected = editor_.draft().selected();
    if (!selected) {
        return;
    }
    if (const auto position = askPosition(editor_.draft().vertices()[*selected])) {
        editor_.moveSelected(*position);
    }
}

bool LotPanel::useKey(const QKeyEvent& event, bool perform) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    for (const LotKey& key : lotKeys()) {
        if (key.keys == QKeyCombination(modifiers, static_cast<Qt::Key>(event.key()))) {
            if (perform) {
                (editor_.*key.run)();
            }
            return true;
        }
    }
    return false;
}

bool LotPanel::takesKey(QEvent& event) {
    const bool perform = event.type() == QEvent::KeyPress;
    if ((perform || event.type() == QEvent::ShortcutOverride) && isEnabled() && editor_.isOpen() &&
        useKey(static_cast<const QKeyEvent&>(event), perform)) {
        event.accept();
        return true;
    }
    return false;
}

bool LotPanel::eventFilter(QObject* watched, QEvent* event) {
    // Otherwise Del would take a file off the map.
    return takesKey(*event) || QWidget::eventFilter(watched, event);
}

void LotPanel::keyPressEvent(QKeyEvent* event) {
    // What the buttons have no use for; the text box has taken its own keys.
    if (description_->hasFocus() || !takesKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

bool LotPanel::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && !description_->hasFocus() &&
        takesKey(*event)) {
        return true;
    }
    return QWidget::event(event);
}

}  // namespace campora
