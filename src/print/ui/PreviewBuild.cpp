// SPDX-License-Identifier: GPL-3.0-or-later
// How the print layout window is put together, and how its entries show what there is.
#include "print/ui/PreviewRows.h"

#include "language/Texts.h"
#include "language/ui/ApplyCaptions.h"
#include "ui/Look.h"
#include "ui/Names.h"

#include <QActionGroup>
#include <QBoxLayout>
#include <QMenuBar>
#include <QScreen>

namespace kestrova {

namespace {

constexpr QSize kFirstSize{960, 900};
constexpr QSize kAround{20, 60}; // the frame, and a little of the desktop
constexpr QSize kSmallestSize{640, 480};
constexpr int kZooms[] = {25, 50, 75, 100, 150, 200, 400}; // percent

} // namespace

Preview::Preview(const Rooms& rooms, Hooks hooks)
    : rooms_(rooms), hooks_(std::move(hooks)), editor_(rooms_.Desk, rooms_.Measure),
      scene_(new PageScene(editor_, rooms_.Measure, this)) {
    setObjectName(QStringLiteral("Preview"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumSize(kSmallestSize);
    resize(kFirstSize.boundedTo(screen()->availableSize() - kAround));
    auto* const centre = new QWidget(this);
    auto* const column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* const bar = new QWidget(centre);
    frame_ = new PageFrame(editor_, *scene_, centre);
    Picture1 = &frame_->View();
    TextEdit = new TextBox(Picture1->viewport());
    column->addWidget(bar);
    column->addWidget(frame_, 1);
    setCentralWidget(centre);
    BuildMenus();
    BuildToolBar(bar);
    Connect();
    LoadCaptions();
    Picture1->setFocus();
}

void Preview::BuildMenus() {
    for (const auto& [name, rows] :
         {std::pair{"MNU_File", FileRows()}, std::pair{"MNU_Edit", EditRows()},
          std::pair{"MNU_View", ViewRows()}}) {
        menus_[QLatin1String(name)] = Named(menuBar()->addMenu(QString()), name);
        for (const MenuRow& row : rows) {
            AddRow(row);
        }
    }
    GiveShortcuts();
    MNU_Context = Named(new QMenu(this), "MNU_Context");
    for (const char* const name : {"MNU_Text", "MNU_Font", "MNU_TextColor", "", "MNU_AddText",
                                   "MNU_AddImage", "", "MNU_Delete"}) {
        if (*name == '\0') {
            MNU_Context->addSeparator();
        } else {
            MNU_Context->addAction(&Entry(QLatin1String(name)));
        }
    }
}

void Preview::AddRow(const MenuRow& row) {
    QMenu& menu = *menus_.at(QLatin1String(row.Menu));
    if (row.What == MenuRow::Sort::Line) {
        menu.addSeparator();
        return;
    }
    const QString name = row.FullName();
    if (row.What == MenuRow::Sort::Menu) {
        menus_[name] = Named(menu.addMenu(QString()), row.Name);
        return;
    }
    QAction* const action = menu.addAction(QString());
    action->setObjectName(name);
    action->setCheckable(row.What != MenuRow::Sort::Plain);
    if (row.What == MenuRow::Sort::Choice) {
        // The entries of a menu of choices belong together.
        auto* group = menu.findChild<QActionGroup*>();
        group = group != nullptr ? group : new QActionGroup(&menu);
        group->addAction(action);
    }
    connect(action, &QAction::triggered, this, [this, &row] {
        if (!busy_) {
            row.Clicked(*this, row.Index);
        }
        ShowAll(); // the tick is what it means, not what was clicked
    });
    entries_[name] = action;
}

void Preview::GiveShortcuts() {
    const std::pair<const char*, QList<QKeySequence>> kKeys[] = {
        {"MNU_Load", {QKeySequence::Open}},
        {"MNU_Save", {QKeySequence::Save}},
        {"MNU_SaveAs", {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)}},
        {"MNU_Print", {QKeySequence::Print}},
        {"MNU_Exit", {QKeySequence(Qt::CTRL | Qt::Key_W)}},
        {"MNU_Undo", {QKeySequence(Qt::CTRL | Qt::Key_Z)}},
        {"MNU_Redo",
         {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)}},
        {"MNU_Text", {QKeySequence(Qt::Key_F2)}},
        {"MNU_SelectAll", {QKeySequence::SelectAll}},
        {"MNU_Delete", {QKeySequence(Qt::Key_Delete)}},
        {"MNU_ZoomIn",
         {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)}},
        {"MNU_ZoomOut", {QKeySequence(Qt::CTRL | Qt::Key_Minus)}},
        {"MNU_ZoomActual", {QKeySequence(Qt::CTRL | Qt::Key_0)}},
        {"MNU_ZoomPage", {QKeySequence(Qt::CTRL | Qt::Key_9)}},
    };
    for (const auto& [name, keys] : kKeys) {
        QAction& entry = Entry(QLatin1String(name));
        entry.setShortcuts(keys);
        if (QLatin1String(name).startsWith(QLatin1String("MNU_Zoom"))) {
            addAction(&entry); // also while the view of the print has no such menu
        }
    }
}

void Preview::BuildToolBar(QWidget* bar) {
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(look::kMargin, look::kSpacing, look::kMargin, look::kSpacing);
    row->setSpacing(look::kSpacing);
    ComPrint = Named(new QPushButton(bar), "ComPrint");
    ComPreview = Named(new QPushButton(bar), "ComPreview");
    ComPreview->setCheckable(true);
    const auto tool = [bar](const char* name) {
        auto* const made = Named(new QToolButton(bar), name);
        made->setFocusPolicy(Qt::TabFocus);
        made->setAutoRaise(true);
        return made;
    };
    ComZoomOut = tool("ComZoomOut");
    ComZoomOut->setText(QStringLiteral("\u2212"));
    ComZoom = tool("ComZoom");
    ComZoom->setPopupMode(QToolButton::InstantPopup);
    ComZoomIn = tool("ComZoomIn");
    ComZoomIn->setText(QStringLiteral("+"));
    row->addWidget(ComPrint);
    row->addWidget(ComPreview);
    row->addStretch(1);
    row->addWidget(ComZoomOut);
    row->addWidget(ComZoom);
    row->addWidget(ComZoomIn);
    BuildZoomMenu();
}

void Preview::BuildZoomMenu() {
    zooms_ = Named(new QMenu(this), "MNU_Zoom");
    zooms_->addAction(&Entry(QStringLiteral("MNU_ZoomPage")));
    zooms_->addSeparator();
    for (const int percent : kZooms) {
        QAction* const action = zooms_->addAction(QStringLiteral("%1 %").arg(percent));
        action->setObjectName(ArrayName("MNU_ZoomTo", percent));
        connect(action, &QAction::triggered, this,
                [this, percent] { Picture1->SetZoom(percent / 100.0); });
    }
    ComZoom->setMenu(zooms_);
}

void Preview::Connect() {
    connect(ComPrint, &QPushButton::clicked, &Entry(QStringLiteral("MNU_Print")),
            &QAction::trigger);
    connect(ComPreview, &QPushButton::clicked, &Entry(QStringLiteral("MNU_Preview")),
            &QAction::trigger);
    connect(ComZoomOut, &QToolButton::clicked, this, [this] { Picture1->ZoomStep(-1); });
    connect(ComZoomIn, &QToolButton::clicked, this, [this] { Picture1->ZoomStep(1); });
    editor_.Changed = [this] { ShowAll(); };
    frame_->ViewChanged = [this] {
        ShowZoom();
        PlaceTextEdit();
    };
    Picture1->EditChosen = [this] { MNU_Text_Click(); };
    Picture1->MenuWanted = [this](const QPoint& global) { MNU_Context->popup(global); };
    TextEdit->Typed = [this] { editor_.TypeText(TextEdit->Caption()); };
    TextEdit->Accepted = [this] { editor_.SpClear(); };
    TextEdit->Cancelled = [this] { editor_.CancelText(); };
    TextEdit->DoubleClicked = [this] { TextEdit_DblClick(); };
}

void Preview::LoadCaptions() {
    ApplyCaptions(*this, rooms_.Texts, TipTexts::Leave);
    for (const auto& [name, text] : {std::pair{"MNU_File", ProgramText::MenuFile},
                                     std::pair{"MNU_Edit", ProgramText::MenuEdit},
                                     std::pair{"MNU_View", ProgramText::MenuView}}) {
        menus_.at(QLatin1String(name))->setTitle(Words(text));
    }
    for (const auto rows : {FileRows(), EditRows(), ViewRows()}) {
        for (const MenuRow& row : rows) {
            const QString caption =
                row.Text == ProgramText::Count ? QString::fromLatin1(row.Caption) : Words(row.Text);
            if (row.What == MenuRow::Sort::Menu) {
                menus_.at(row.FullName())->setTitle(caption);
            } else if (row.What != MenuRow::Sort::Line) {
                Entry(row.FullName()).setText(caption);
            }
        }
    }
    const auto plain = [this](ProgramText text) { return Words(text).remove(QLatin1Char('&')); };
    ComPreview->setText(plain(ProgramText::MenuPrintPreview));
    Picture1->setAccessibleName(plain(ProgramText::PageSurface));
    TextEdit->setAccessibleName(plain(ProgramText::MenuEditText));
    const bool tips = rooms_.Settings.HelpTextOn != 0;
    for (const auto& [button, text] : {std::pair{ComZoomOut, ProgramText::MenuZoomOut},
                                       std::pair{ComZoom, ProgramText::ZoomName},
                                       std::pair{ComZoomIn, ProgramText::MenuZoomIn}}) {
        button->setAccessibleName(plain(text));
        button->setToolTip(tips ? plain(text) : QString());
    }
    ShowTitle();
    ShowZoom();
}

} // namespace kestrova
