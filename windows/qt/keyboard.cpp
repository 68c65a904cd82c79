// Recognises the repeats that Qt marks, and those that it misses on X11: there a repeat is a release and a press with
// the same time stamp, and Qt marks the press only if both events arrive together.

#include "windows/qt/keyboard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace tessaly {

namespace {

// Returns whether pressing the key would click, pick or run something, and so must not repeat.
bool mustnotrepeat(int key) {
    const QWidget* const focused = QApplication::focusWidget();
    const auto* const button = qobject_cast<const QAbstractButton*>(focused);
    switch (key) {
    case Qt::Key_Space: return button ? !button->autoRepeat() : !qobject_cast<const QLineEdit*>(focused);
    case Qt::Key_Return:
    case Qt::Key_Enter: return !button || !button->autoRepeat();
    case Qt::Key_Escape: return true;
    default: return key >= Qt::Key_F1 && key <= Qt::Key_F35;
    }
}

bool keypressedlast = false;  // not a mouse button

class keyfilter : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) keypressedlast = false;
        if (event->type() == QEvent::KeyRelease) release(*static_cast<QKeyEvent*>(event));
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
        keypressedlast = true;
        const auto& press = *static_cast<QKeyEvent*>(event);
        if (!repeated(press) || !mustnotrepeat(press.key())) return false;
        event->accept();  // an accepted ShortcutOverride is followed by a KeyPress, which is dropped here, too
        return true;
    }

  private:
    void release(const QKeyEvent& event) {
        releasedkey = event.key();
        releasetime = event.timestamp();
    }
    bool repeated(const QKeyEvent& press) const {
        return press.isAutoRepeat() ||
               (releasetime != 0 && press.key() == releasedkey && press.timestamp() == releasetime);
    }

    int releasedkey = 0;      // the last one
    quint64 releasetime = 0;  // ms; 0: unknown
};

}  // namespace

void droprepeats() {
    static keyfilter* const filter = new keyfilter(qApp);
    qApp->installEventFilter(filter);
}

bool lastpresswaskey() { return keypressedlast; }

}  // namespace tessaly
