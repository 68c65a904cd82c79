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

#include <sstream>

namespace tessaly {

class windowsession : public testing::Test {
  protected:
    windowsession() {
        static int argc = 1;
        static char name[] = "windowtests", *argv[] = {name, nullptr};
        if (!qApp) {
            QApplication::setDesktopSettingsAware(false);
            new QApplication(argc, argv);
            setstyle();
            usepicturefiles();
        }
        messagereader.callOnTimeout([this] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            report = box->text().toStdString();
            runevent([] { ADD_FAILURE() << "an event behind the message"; });
            box->accept();
        });
        messagereader.start(5);
        start();
    }
    ~windowsession() override { destroywindows(); }

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
            QWidget* const focused = frameof(*activewindow)->focusWidget();
            if (const auto key = QKeySequence(word.c_str())[0].key(); key != Qt::Key_unknown)
                QTest::keyClick(focused, key);
            else if (word.front() == '"')
                QTest::keyClicks(focused, word.substr(1, word.size() - 2).c_str());
            else
                gotoorcheck(word.front(), word.substr(word.find_first_not_of("=-")));
        }
    }

    workingfolder folder{TESSALY_SOURCE_DIR};
    std::string report;  // of a failure, read on the screen and closed

  private:
    void gotoorcheck(char mark, const std::string& name) {
        const control* const c = findcontrol(name);
        const window* const w = c ? c->parent : findwindow(name);
        ASSERT_TRUE(w && frameof(*w)) << "no such control or window, or it was not opened";
        if (mark == '-') {
            EXPECT_FALSE(c ? widgetof(*c)->isVisible() : frameof(*w)->isVisible());
            return;
        }
        activewindow = w;
        frameof(*w)->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([w] { return QApplication::activeWindow() == frameof(*w); }));
        for (int tabs = 0; mark != '=' && focusedcontrol(*w) != c && tabs < 400; ++tabs) {
            QTest::keyClick(frameof(*w)->focusWidget(), Qt::Key_Tab);
            const auto* line = qobject_cast<QLineEdit*>(frameof(*w)->focusWidget());
            EXPECT_TRUE(!line || line->selectedText() == line->text());  // to be typed over
        }
        const QWidget* const focused = frameof(*w)->focusWidget();
        EXPECT_EQ(focused, c ? widgetof(*c) : frameof(*w)->content())
            << "the focus is on " << (focused ? qPrintable(focused->objectName()) : "nothing");
    }

    const window* activewindow = &vistaplan;  // to which the desktop sends keys
    QTimer messagereader;
};

}  // namespace tessaly
