// A user who does anything at all: presses, picks, types, closes and captures at random in the real widgets. After each
// event every widget shows what its control holds and the focus is where it belongs; at the end the player, given the
// same actions, has left the same files and the same picture, or has ended with the same report.
// TESSALY_ACTIONS: how many actions in all; TESSALY_SEED: of the first session, which the others follow.

#include "render/raster.h"
#include "tests/windowsession.h"
#include "windows/handlers.h"
#include "windows/qt/canvas.h"
#include "windows/qt/controlwidgets.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <random>

namespace tessaly {

namespace {

namespace fs = std::filesystem;

unsigned fromenvironment(const char* name, unsigned usual) {
    const char* const text = std::getenv(name);
    return text ? static_cast<unsigned>(std::atoi(text)) : usual;
}

std::string shownby(const QWidget& widget) {
    if (const auto* push = qobject_cast<const QPushButton*>(&widget)) return push->text().toStdString();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text().toStdString();
    return typedtext(widget);
}

std::vector<std::string> rowsof(const QListWidget& rows) {
    std::vector<std::string> items;
    for (int row = 0; row < rows.count(); ++row) items.push_back(rows.item(row)->text().toStdString());
    return items;
}

// The files of the working folder that the program writes, by their bytes.
std::map<std::string, std::string> filesbelow(const fs::path& root) {
    std::map<std::string, std::string> files;
    for (const char* kept : {"designs", "bmps", "nonuser"})
        for (const auto& entry : fs::recursive_directory_iterator(root / kept)) {
            std::ostringstream bytes;
            bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            files[fs::relative(entry.path(), root)] = bytes.str();
        }
    return files;
}

class randomuser : public windowsession {
  protected:
    void session(unsigned seed, unsigned& actions) {
        random.seed(seed);
        script = "click startprogrambtn\n";
        report.clear();
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });  // forgets that the session before ended the program
        QApplication::exec();
        start();
        for (int done = 0; done < 80 && actions > 0 && !ended(); ++done, --actions) {
            act();
            ASSERT_FALSE(HasFailure()) << "session " << seed << ":\n" << script;
        }
    }

    bool ended() const { return programended || !report.empty(); }

    unsigned oneof(std::size_t count) { return static_cast<unsigned>(random() % count); }

    template <class kinds>
    control* anycontrol(kinds fits) {
        std::vector<const window*> windows;
        for (const window* w : allwindows())
            if (w->shown) windows.push_back(w);
        const window* const in = windows[oneof(windows.size())];
        std::vector<control*> found;
        for (control* c : in->controls)
            if (c->shown && fits(*c)) found.push_back(c);
        return found.empty() ? nullptr : found[oneof(found.size())];
    }

    void act() {
        const unsigned what = oneof(100);
        if (what < 55)
            pressany();
        else if (what < 75)
            pickany();
        else if (what < 95)
            typeany();
        else
            closeany();
    }

    // The keyboard's way as often as the mouse's.
    void pressany() {
        control* const c = anycontrol(
            [](const control& b) { return b.kind == controlkind::button || b.kind == controlkind::picturebutton; });
        if (!c || (c == &exitbtn && oneof(4) > 0)) return;
        script += "click " + c->name + '\n';
        QWidget* const widget = widgetof(*c);
        event(c, [&] {
            if (oneof(2) == 0) return QTest::mouseClick(widget, Qt::LeftButton);
            if (c == &cventerbtn) return QTest::keyClick(widget, Qt::Key_F5);
            widget->setFocus(Qt::TabFocusReason);
            QTest::keyClick(widget, Qt::Key_Return);
        });
    }

    void pickany() {
        control* const c =
            anycontrol([](const control& l) { return l.kind == controlkind::list || l.kind == controlkind::filelist; });
        if (!c || c->items.empty()) return;
        const int row = static_cast<int>(oneof(c->items.size()));
        script += "pick " + c->name + " \"" + c->items[static_cast<std::size_t>(row)] + "\"\n";
        event(c, [&] {
            auto* const rows = qobject_cast<QListWidget*>(widgetof(*c));
            if (oneof(2) == 0) return pick(*c, row);
            rows->setFocus(Qt::TabFocusReason);
            rows->setCurrentRow(row, QItemSelectionModel::NoUpdate);
            QTest::keyClick(rows, Qt::Key_Return);
        });
    }

    void typeany() {
        static const char* const texts[] = {"0",   "1",   "2.5",   "-270",  "1850",           "-1850.5",
                                            ".07", "100", "10",    "3x",    "solid",          "wireframe",
                                            "on",  "off", "a.bmp", "b.bmp", "snip both sides"};
        control* const c = anycontrol([](const control& b) {
            const auto* const line = qobject_cast<QLineEdit*>(widgetof(b));
            return b.kind == controlkind::combobox || (line && !line->isReadOnly());
        });
        if (!c) return;
        const bool name = c == &capbox,
                   word = c == &wiresolid || c == &writefilebox || c == &panelsnipper || c == &floor;
        const std::size_t first = name ? 14 : 0, last = name ? 16 : word ? std::size(texts) : 9;
        const char* const text = texts[first + oneof(last - first)];
        script += "type " + c->name + " \"" + text + "\"\n";
        event(c, [&] {
            auto* const box = qobject_cast<QComboBox*>(widgetof(*c));
            auto* const line = box ? box->lineEdit() : qobject_cast<QLineEdit*>(widgetof(*c));
            widgetof(*c)->setFocus(Qt::TabFocusReason);
            line->selectAll();
            QTest::keyClicks(line, text);
            runevent([] {});
        });
    }

    void closeany() {
        for (const window* w : {&layoutgirder, &layoutpanels, &layoutroof, &easyviews, &instructions})
            if (w->shown && oneof(2) == 0) {
                script += std::string("close ") + w->name + '\n';
                return event(nullptr, [&] { faceof(*w)->close(); });
            }
    }

    // What the user does, and what must hold after it; a report on the screen is read and closed.
    template <class doing>
    void event(const control* used, doing run) {
        std::map<const window*, const control*> before;
        for (const window* w : allwindows()) before[w] = focusedcontrol(*w);
        QTimer reader;
        QObject::connect(&reader, &QTimer::timeout, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                report = box->text().toStdString();
                box->accept();
            }
        });
        reader.start(5);
        run();
        for (const window* w : allwindows()) {
            if (!faceof(*w)) continue;
            EXPECT_EQ(faceof(*w)->isVisible(), w->shown) << w->name;
            for (const control* c : w->controls) expectsame(*c, *widgetof(*c));
            if (report.empty()) expectfocus(*w, used, before[w]);
        }
    }

    static void expectsame(const control& c, QWidget& widget) {
        EXPECT_EQ(widget.isHidden(), !c.shown) << c.name;
        if (const auto* box = qobject_cast<QComboBox*>(&widget)) {
            EXPECT_EQ(box->currentIndex(), box->findText(QString::fromStdString(c.text), Qt::MatchExactly));
        }
        const auto* const rows = qobject_cast<QListWidget*>(&widget);
        if (!rows) {
            EXPECT_TRUE(c.kind == controlkind::picturebox || shownby(widget) == c.text)
                << c.name << " shows " << shownby(widget) << " for " << c.text;
            return;
        }
        EXPECT_EQ(rowsof(*rows), c.items) << c.name;
        const QModelIndexList marked = rows->selectionModel()->selectedRows();
        EXPECT_EQ(marked.isEmpty() ? -1 : marked.front().row(), c.selected) << c.name;
    }

    // On nothing, where it was, on what was used, on what opened that, or on a list or box that has just been opened.
    static void expectfocus(const window& w, const control* used, const control* before) {
        const control* const now = focusedcontrol(w);
        if (!now) return;
        const bool opened = now->openedby == used &&
                            (now == &capbox || now->kind == controlkind::list || now->kind == controlkind::filelist);
        const bool back = (used && focusafter(*used) == now) || (before && focusafter(*before) == now);
        EXPECT_TRUE(now->shown && (now == before || now == used || opened || back))
            << "the focus is on " << now->name << ", was on " << (before ? before->name : "nothing");
    }

    // The player's status and report, and what it leaves.
    void comparewithplayer(const std::string& told) {
        savepicture(viewportimage(), "screen.png");
        const fs::path here = fs::current_path();
        workingfolder played(TESSALY_SOURCE_DIR);
        std::ofstream("actions.play") << script << (ended() ? "" : "picture screen.png\n");
        const int status = std::system(TESSALY_PLAY " actions.play 2>report.txt");
        EXPECT_EQ(status != 0, !report.empty()) << file("report.txt");
        EXPECT_EQ(file("report.txt"), told);
        EXPECT_TRUE(filesbelow(".") == filesbelow(here)) << "other files after\n" << script;
        const QImage seen((here / "screen.png").c_str());
        EXPECT_TRUE(ended() || (!seen.isNull() && seen == QImage("screen.png"))) << "another picture after\n" << script;
    }

    std::mt19937 random;
    std::string script, report;
};

}  // namespace

TEST_F(randomuser, leavesWhatThePlayerLeaves) {
    unsigned actions = fromenvironment("TESSALY_ACTIONS", 400), sessions = 0, ended = 0;
    for (unsigned seed = fromenvironment("TESSALY_SEED", 1); actions > 0 && !HasFailure(); ++seed, ++sessions) {
        testing::internal::CaptureStderr();
        session(seed, actions);
        const std::string told = testing::internal::GetCapturedStderr();
        if (HasFailure()) return;
        const std::size_t line = std::min(told.find("failure "), told.size());
        comparewithplayer(told.substr(line, told.find('\n', line) + 1 - line));
        ended += !report.empty();
        TearDown();
        SetUp();
    }
    RecordProperty("sessions", static_cast<int>(sessions));
    RecordProperty("ended with a report", static_cast<int>(ended));
}

}  // namespace tessaly
