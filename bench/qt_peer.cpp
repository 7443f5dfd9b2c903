#include "qt_peer.h"

#include "bench.h"

#include <QAbstractEventDispatcher>
#include <QAbstractTableModel>
#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTableWidget>
#include <QTextLayout>
#include <QTreeWidget>
#include <QWindow>
#include <algorithm>

namespace qt_peer {

void Start(int& argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    new QApplication(argc, argv);  // for the life of the process
}

double Append(int nItems, const char* pszText) {
    QTreeWidget tree;
    tree.setUpdatesEnabled(false);
    const QString text = QString::fromLatin1(pszText);
    return bench::Time([&] {
        for (int i = 0; i < nItems; ++i) {
            auto* pItem = new QTreeWidgetItem;
            pItem->setText(0, text);
            tree.addTopLevelItem(pItem);
        }
    });
}

double ExpandAll(int nRoots, int nMiddle, int nLeaves) {
    QTreeWidget tree;
    tree.setUniformRowHeights(true);
    tree.resize(400, 600);
    QList<QTreeWidgetItem*> roots;
    for (int i = 0; i < nRoots; ++i) {
        auto* pRoot = new QTreeWidgetItem(QStringList("root"));
        for (int k = 0; k < nMiddle; ++k) {
            auto* pMiddle = new QTreeWidgetItem(pRoot, QStringList("middle"));
            for (int m = 0; m < nLeaves; ++m) {
                new QTreeWidgetItem(pMiddle, QStringList("leaf"));
            }
        }
        roots.append(pRoot);
    }
    tree.addTopLevelItems(roots);
    tree.show();
    QApplication::processEvents();
    return bench::Time([&] {
        tree.expandAll();
        tree.scrollToBottom();  // wants the layout
        QApplication::processEvents();
    });
}

double Sort(const std::vector<std::string>& texts) {
    QTreeWidget tree;
    auto* pParent = new QTreeWidgetItem(&tree);
    QList<QTreeWidgetItem*> items;
    for (const std::string& strText : texts) {
        items.append(new QTreeWidgetItem(QStringList(QString::fromStdString(strText))));
    }
    pParent->addChildren(items);
    return bench::Time([&] { pParent->sortChildren(0, Qt::AscendingOrder); });
}

double FillTable(const std::vector<std::string>& rows, int nColumns) {
    QList<QStringList> texts;
    for (const std::string& strRow : rows) {
        texts.append(QString::fromStdString(strRow).split('\t'));
    }
    QTableWidget table;
    table.setUpdatesEnabled(false);
    return bench::Time([&] {
        table.setColumnCount(nColumns);
        table.setRowCount(static_cast<int>(texts.size()));
        for (int nRow = 0; nRow < texts.size(); ++nRow) {
            for (int nCol = 0; nCol < nColumns; ++nCol) {
                table.setItem(nRow, nCol, new QTableWidgetItem(texts.at(nRow).at(nCol)));
            }
        }
    });
}

double WrapLines(const std::vector<std::string>& lines, int nChars, int& nRows) {
    QList<QString> texts;
    for (const std::string& strLine : lines) {
        texts.append(QString::fromStdString(strLine));
    }
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const qreal nWidth = QFontMetricsF(font).horizontalAdvance(QString(nChars, 'x'));
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    nRows = 0;
    return bench::Time([&] {
        for (const QString& text : texts) {
            QTextLayout layout(text, font);
            layout.setTextOption(option);
            layout.beginLayout();
            for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
                line.setLineWidth(nWidth);
                ++nRows;
            }
            layout.endLayout();
        }
    });
}

namespace {

template <class Value>
double StableSort(QList<Value> values) {
    values.detach();
    return bench::Time([&] { std::stable_sort(values.begin(), values.end()); });
}

QList<QString> ToQt(const std::vector<std::string>& texts) {
    QList<QString> list;
    for (const std::string& strText : texts) {
        list.append(QString::fromStdString(strText));
    }
    return list;
}

class ValueModel : public QAbstractTableModel {
public:
    ValueModel(const std::vector<std::string>& texts, const std::vector<int>& numbers)
        : m_texts(ToQt(texts)), m_numbers(numbers) {}
    int rowCount(const QModelIndex&) const override { return static_cast<int>(m_texts.size()); }
    int columnCount(const QModelIndex&) const override { return 2; }
    QVariant data(const QModelIndex& index, int nRole) const override {
        if (nRole != Qt::DisplayRole) {
            return {};
        }
        return index.column() == 0 ? QVariant(m_texts.at(index.row()))
                                   : QVariant(m_numbers[static_cast<size_t>(index.row())]);
    }

private:
    const QList<QString> m_texts;
    const std::vector<int>& m_numbers;
};

class ShownModel : public QAbstractTableModel {
public:
    ShownModel(int nRows, int nColumns) : m_nRows(nRows), m_nColumns(nColumns) {}
    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : m_nRows;
    }
    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : m_nColumns;
    }
    QVariant data(const QModelIndex& index, int nRole) const override {
        return nRole == Qt::DisplayRole
                   ? QVariant(QString("row %1 cell %2").arg(index.row()).arg(index.column()))
                   : QVariant();
    }
    void Append(int nRows) {
        beginInsertRows({}, m_nRows, m_nRows + nRows - 1);
        m_nRows += nRows;
        endInsertRows();
    }

private:
    int m_nRows;
    const int m_nColumns;
};

// Rows and columns of the size that they have in our list: 56 rows are in view in both. No grid
// and no wrapping, which ours has not either.
class ShownView : public QTableView {
public:
    ShownView() {
        QFont small = font();
        small.setPixelSize(12);
        setFont(small);
        setShowGrid(false);
        setWordWrap(false);
        verticalHeader()->hide();
        verticalHeader()->setMinimumSectionSize(1);
        verticalHeader()->setDefaultSectionSize(14);
        horizontalHeader()->setDefaultSectionSize(110);
        resize(600, 800);
    }
    // Painted as it is, with nothing left to do.
    void ShowAndSettle() {
        show();
        while (windowHandle() == nullptr || !windowHandle()->isExposed()) {
            QApplication::processEvents();
        }
        Settle();
        m_nPaints = 0;
    }
    // Until nothing waits for the window and the screen has its pixels: who reads one waits for
    // all that was drawn before.
    void Settle() {
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
        }
        screen()->grabWindow(0, 300, 400, 1, 1);
    }
    void AwaitPaint() {
        while (m_nPaints == 0) {
            QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
        }
    }

protected:
    void paintEvent(QPaintEvent* pEvent) override {
        ++m_nPaints;
        QTableView::paintEvent(pEvent);
    }

private:
    int m_nPaints = 0;
};

}  // namespace

double SortPlain(const std::vector<std::string>& texts) {
    return StableSort(ToQt(texts));
}

double SortPlain(const std::vector<int>& numbers) {
    return StableSort(QList<int>(numbers.begin(), numbers.end()));
}

double SortByProxy(const std::vector<std::string>& texts, const std::vector<int>& numbers,
                   bool bTexts) {
    ValueModel model(texts, numbers);
    QSortFilterProxyModel proxy;
    proxy.setSortCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(&model);
    proxy.index(0, 0);  // wants the rows
    return bench::Time([&] { proxy.sort(bTexts ? 0 : 1); });
}

Shown ShowModel(int nRows, int nColumns) {
    ShownModel model(nRows, nColumns);
    ShownView view;
    view.ShowAndSettle();
    Shown shown;
    shown.firstPage = bench::Time([&] {
        view.setModel(&model);
        view.AwaitPaint();
    });
    shown.ready = shown.firstPage + bench::Time([&] { view.Settle(); });
    return shown;
}

double ShowMoreRows(int nRows, int nColumns) {
    ShownModel model(0, nColumns);
    ShownView view;
    view.setModel(&model);
    view.ShowAndSettle();
    return bench::Time([&] {
        model.Append(nRows);
        view.AwaitPaint();
        view.Settle();
    });
}

}  // namespace qt_peer
