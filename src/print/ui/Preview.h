// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/ProgramTexts.h"
#include "platform/Dialogs.h"
#include "platform/qt/PaperMeasure.h"
#include "platform/qt/QtText.h"
#include "print/LayoutEditor.h"
#include "print/PrintDesk.h"
#include "print/ui/PageFrame.h"
#include "print/ui/PageScene.h"
#include "print/ui/TextBox.h"

#include <QMainWindow>
#include <QPushButton>
#include <QToolButton>

#include <functional>
#include <map>
#include <span>
#include <string>

namespace kestrova {

// The print layout window: the page of a month, which the user arranges by hand, sees as it will be
// printed, prints, and keeps in a file. The program keeps one, hidden while it is not used.
class Preview : public QMainWindow {
public:
    struct Rooms {
        PrintDesk& Desk;
        const StringTable& Texts;
        const AppSettings& Settings;
        Dialogs& Boxes;
        const std::string& DataFolder; // where layouts are kept
        const PaperMeasure& Measure;
    };

    struct Hooks {
        // Writes the page into a PDF file.
        std::function<Status(const std::string& path)> SavePdf;
        // Something is to be printed: what the printer must know first is asked for. False when the
        // user thinks better of it.
        std::function<bool()> ReadyToPrint;
        // The window has been closed: the settings hold the paper's size, and are to be saved.
        std::function<void()> Closed;
    };

    Preview(const Rooms& rooms, Hooks hooks);

    // Opens the layout for the month on show, once the user has agreed to lose what has been
    // changed on a page that is open. Without a printer there is a message and no window.
    void OpenMonth();

    // Asks whether the changes to the page are to be saved, where there are any. False when the
    // user wants to go on with it, or it could not be saved.
    [[nodiscard]] bool LeavePage();

    // The same, and closes the window. False also while something is on its way to the printer.
    [[nodiscard]] bool TryLeave();

    // Whether something is under way that must not be disturbed.
    [[nodiscard]] bool IsBusy() const { return busy_; }

    // Puts the texts of the string table into the window and its menus.
    void LoadCaptions();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct MenuRow;
    class Wait;

    static std::span<const MenuRow> FileRows();
    static std::span<const MenuRow> EditRows();
    static std::span<const MenuRow> ViewRows();
    void BuildMenus();
    void AddRow(const MenuRow& row);
    void GiveShortcuts();
    void BuildToolBar(QWidget* bar);
    void BuildZoomMenu();
    void Connect();

    [[nodiscard]] QAction& Entry(const QString& name) const { return *entries_.at(name); }
    [[nodiscard]] QString Words(ProgramText text) const { return ToQt(TextOf(rooms_.Texts, text)); }
    void Tell(const std::string& text);
    [[nodiscard]] std::string ReasonOf(const Error& error) const;
    [[nodiscard]] bool IsPrintView() const { return scene_->IsPrinted(); }

    void ShowAll();
    [[nodiscard]] QString NameOfSelected() const;
    void ShowEntries();
    void ShowChecks();
    void ShowZoom();
    void ShowTitle();
    void ShowTextEdit();
    void PlaceTextEdit();
    void NewSurface();
    void FitSurface();
    void EnterView(bool printed);
    void Leave();

    [[nodiscard]] bool SaveTo(const std::string& path);
    [[nodiscard]] bool SaveAs();
    [[nodiscard]] bool Save();
    void ShowNoPrinter();
    void LoadImage(const std::string& shown, const std::function<Status(const std::string&)>& load);
    void Print(Status (PrintDesk::*what)());

    void MNU_Load_Click();
    void MNU_SavePdf_Click();
    void MNU_Print_Click();
    void MNU_PrDiary_Click();
    void MNU_Preview_Click();
    void MNU_Landscape_Click();
    void MNU_Normal_Click();
    void MNU_Size_Click(int index);
    void MNU_Qul_Click(int index);
    void MNU_Color_Click();
    void MNU_BW_Click();

    void MNU_Text_Click();
    void MNU_Font_Click();
    void MNU_TextColor_Click();
    void MNU_AddText_Click();
    void MNU_AddImage_Click();
    void MNU_BorderColor_Click();
    void MNU_BackLoad_Click();
    void MNU_PicLoad_Click();
    void TextEdit_DblClick();

    Rooms rooms_;
    Hooks hooks_;
    LayoutEditor editor_;
    PageScene* scene_;
    PageFrame* frame_ = nullptr;
    PageView* Picture1 = nullptr;
    TextBox* TextEdit = nullptr;
    std::optional<LayoutRef> inTextEdit_;
    bool layoutTitle_ = false; // the view has been changed back from that of the print
    PageSize shownSurface_;
    bool busy_ = false; // something is under way that events go on beside

    std::map<QString, QAction*> entries_;
    std::map<QString, QMenu*> menus_;
    QMenu* MNU_Context = nullptr;
    QMenu* zooms_ = nullptr;
    QPushButton* ComPrint = nullptr;
    QPushButton* ComPreview = nullptr;
    QToolButton* ComZoomOut = nullptr;
    QToolButton* ComZoom = nullptr;
    QToolButton* ComZoomIn = nullptr;
};

} // namespace kestrova
