// The real windows without a screen, over a scratch working folder, used by mouse and keyboard.
#pragma once

#include "picturefiles/picturefile.h"
#include "tests/session.h"
#include "windows/qt/binding.h"
#include "windows/qt/style.h"

#include <QApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <optional>
#include <sstream>

namespace tessaly {

inline void startapplication() {
    static int argc = 1;
    static char name[] = "windowtests", *argv[] = {name, nullptr};
    if (qApp) return;
    QApplication::setDesktopSettingsAware(false);
    new QApplication(argc, argv);
    setstyle();
    usepicturefiles();
}

class windowsession : public testing::Test {
  protected:
    windowsession() {
        startapplication();
        messagereader.callOnTimeout([this] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            report = box->text().toStdString();
            runevent([] { ADD_FAILURE() << "an event behind the message"; });
            box->accept();
        });
        messagereader.start(5);
    }

    void SetUp() override {
        folder.emplace(TESSALY_SOURCE_DIR);
        start();
    }

    void TearDown() override {
        destroywindows();
        folder.reset();
    }

    static void click(const control& c) {
        ASSERT_TRUE(widgetof(c) && widgetof(c)->isVisible()) << c.name;
        QTest::mouseClick(widgetof(c), Qt::LeftButton);
    }
    static void start() {
        destroywindows();  // the controls that they show are created again
        openwindows();
        click(startprogrambtn);
    }

    // What a user does by the keyboard alone, word by word:
    //   Return   presses a key where the focus is
    //   "text"   types
    //   floor    goes to a control, by Tab
    //   =floor   expects the focus on a control, or on none of a window's
    //   -floor   expects a control or a window to be hidden
    void keys(const std::string& words) {
        std::istringstream all(words);
        for (std::string word; all >> word && !HasFatalFailure();) {
            SCOPED_TRACE(word);
            if (const auto key = QKeySequence(word.c_str())[0].key(); key != Qt::Key_unknown)
                press(key);
            else if (word.front() == '"')
                type(word.substr(1, word.size() - 2));
            else
                gotoorcheck(word.front(), word.find_first_of("=-") == 0 ? word.substr(1) : word);
        }
    }

    std::optional<workingfolder> folder;
    std::string report;  // of a failure, read on the screen and closed

  private:
    void type(const std::string& text) {
        ASSERT_TRUE(frameof(*activewindow)->focusWidget()) << "nothing has the focus in " << activewindow->name;
        QTest::keyClicks(frameof(*activewindow)->focusWidget(), text.c_str());
    }

    void press(Qt::Key key) {
        ASSERT_TRUE(frameof(*activewindow)->focusWidget()) << "nothing has the focus in " << activewindow->name;
        QTest::keyClick(frameof(*activewindow)->focusWidget(), key);
        const auto* line = qobject_cast<QLineEdit*>(frameof(*activewindow)->focusWidget());
        EXPECT_TRUE(key != Qt::Key_Tab || !line || line->selectedText() == line->text());  // to be typed over
    }

    void gotoorcheck(char mark, const std::string& name) {
        const control* const c = findcontrol(name);
        const window* const w = c ? c->parent : findwindow(name);
        ASSERT_TRUE(w) << "no control and no window";
        ASSERT_TRUE(frameof(*w)) << w->name << " was not opened";
        if (mark == '-') {
            EXPECT_FALSE(c ? widgetof(*c)->isVisible() : frameof(*w)->isVisible());
            return;
        }
        activewindow = w;
        frameof(*w)->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([w] { return QApplication::activeWindow() == frameof(*w); }));
        for (int tabs = 0; mark != '=' && focusedcontrol(*w) != c && tabs < 400; ++tabs) press(Qt::Key_Tab);
        const QWidget *const focused = frameof(*w)->focusWidget(), *const wanted =
                                                                       c ? widgetof(*c) : frameof(*w)->content();
        EXPECT_TRUE(focused == wanted) << "the focus is on "
                                       << (focused ? qPrintable(focused->objectName()) : "nothing");
    }

    const window* activewindow = &vistaplan;  // to which the desktop sends keys
    QTimer messagereader;
};

}  // namespace tessaly
