// The page about the program: which supply it reads, what it is made of, where it keeps its files, its keys.
#pragma once

#include "ui/UpdateNotice.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <vector>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;
class QScrollArea;

namespace zpsg::ui {

class Card;
class PageHead;

/// What is told of the supply. What is not known is empty or 0.
struct AboutSupply {
    enum class Link {
        None, ///< none is connected
        Main, ///< 64-byte reports
        Raw,  ///< input reports with ids
        Demo, ///< it is a simulated one
    };

    QString model;
    double ratedWatts = 0.0;
    QString serial;
    Link link = Link::None;
};

class AboutPage : public QWidget {
    Q_OBJECT

public:
    /// The version is the application's; `pages` is how many of them have a key.
    explicit AboutPage(int pages, QWidget *parent = nullptr);

    void setSupply(const AboutSupply &supply);
    void setDataFolder(const QString &folder);
    /// Above all else, while there is a newer version; without one it is not there.
    void setUpdate(const UpdateNews &news);

    /// What the button copies: model, rating and connection, and the versions. Neither the serial number nor
    /// the data folder, which may hold a name. In English whatever the language: it is for those who mend it.
    [[nodiscard]] QString details() const;

signals:
    /// The user wants to see the page of the newer version.
    void updatePageRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    class Sign;
    /// A name and what stands behind it.
    struct Row {
        QLabel *name;
        QLabel *value;
        const char *key; ///< of the name
    };
    struct Section {
        Card *card;
        QLabel *caption;
        QGridLayout *grid;
        const char *key;
    };

    Section addSection(const char *key);
    QLabel *addRow(const Section &section, const char *key);
    void addLibraries(const Section &section);
    void addKeys(const Section &section);
    void layOut();
    void retranslate();
    void showSupply();
    void showKeys();
    void applyScale();
    void copyDetails();
    void showButton();

    int pages_;
    AboutSupply supply_;
    QScrollArea *scroll_;
    QWidget *content_; ///< what is scrolled
    Sign *sign_;
    PageHead *head_;
    QPushButton *copy_;
    UpdateNotice *update_;
    std::vector<Section> sections_;
    std::vector<Row> rows_;
    QLabel *model_ = nullptr;
    QLabel *rating_ = nullptr;
    QLabel *serial_ = nullptr;
    QLabel *link_ = nullptr;
    QLabel *folder_ = nullptr;
    QLabel *libraries_ = nullptr; ///< caption of their list
    std::vector<QLabel *> fine_;  ///< that list, in small print
    std::vector<QLabel *> keys_;  ///< the names of keys, in the order of their rows
    QBoxLayout *top_ = nullptr;
    QBoxLayout *columns_ = nullptr;
    std::array<QBoxLayout *, 2> column_{};
    QTimer copied_; ///< runs while the button confirms
};

} // namespace zpsg::ui
