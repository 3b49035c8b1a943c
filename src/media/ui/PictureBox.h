// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/ui/PictureThreads.h"

#include <QDateTime>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace kestrova {

// Whether the picture keeps its shape or fills the area.
enum class PictureFit { KeepAspect, Fill };

// The month's picture. Files are read and scaled away from the window's thread, so that neither the
// first sight of the month nor a resize waits for them; until a picture is there, the area has the
// colour of the window. A file that cannot be shown leaves the picture before it.
class PictureBox : public QWidget {
public:
    explicit PictureBox(QWidget* parent);

    // Shows the file, unless it is the one on show and has not changed on the disc since. An empty
    // path leaves the picture as it is.
    void SetPicture(const QString& path);

    void SetFit(PictureFit fit);

    // Whether a picture is shown, and the file that it is from.
    [[nodiscard]] bool HasPicture() const { return !image_.isNull(); }
    [[nodiscard]] const QString& Path() const { return shownPath_; }

    std::function<void()> Clicked;
    std::function<void()> DoubleClicked;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    // What tells a file that has been replaced from the one before it.
    struct Mark {
        QDateTime Modified;
        qint64 Size = 0;

        bool operator==(const Mark&) const = default;
    };

    static Mark MarkOf(const QString& path);
    void Load();
    [[nodiscard]] QRectF Target() const;
    [[nodiscard]] QRectF Source(const QRectF& target) const;

    QString path_; // that is wanted
    Mark mark_;    // of that file, when it was asked for
    QString shownPath_;
    QImage image_;
    PictureFit fit_ = PictureFit::Fill;
    QTimer reload_;
    bool painted_ = false;
    PictureThreads threads_;
};

} // namespace kestrova
