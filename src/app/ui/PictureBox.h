// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

    // An empty path leaves the picture as it is.
    void SetPicture(const QString& path);
    void SetFit(PictureFit fit);

    // Whether a picture is shown.
    [[nodiscard]] bool HasPicture() const { return !image_.isNull(); }

    std::function<void()> Clicked;
    std::function<void()> DoubleClicked;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void Load();
    [[nodiscard]] QRectF Target() const;
    [[nodiscard]] QRectF Source(const QRectF& target) const;

    QString path_;
    QImage image_;
    PictureFit fit_ = PictureFit::Fill;
    QTimer reload_;
    bool painted_ = false;
    quint64 wanted_ = 0; // number of the newest load; older ones come too late
};

} // namespace kestrova
