#include "sistema/Volumi.h"

#include <QFileInfo>
#include <QTest>

class tst_Volumi : public QObject
{
    Q_OBJECT

private slots:
    void VolumiDaTabella_data();
    void VolumiDaTabella();
    void Volumi_diQuestaMacchina();
};

void tst_Volumi::VolumiDaTabella_data()
{
    QTest::addColumn<QByteArray>("tabella");
    QTest::addColumn<QStringList>("attesi");
    const QString radice = QStringLiteral("/");
    QTest::newRow("vuota") << QByteArray() << QStringList{radice};
    QTest::newRow("sola radice") << QByteArray("/dev/sda1 / ext4 rw 0 0\n") << QStringList{radice};
    QTest::newRow("parti del sistema")
        << QByteArray(
               "proc /proc proc rw 0 0\ntmpfs /run tmpfs rw 0 0\n/dev/sda1 /boot/efi vfat rw "
               "0 0\n/dev/loop3 /snap/x/1 squashfs ro 0 0\n/dev/sda1 /etc/hosts ext4 rw 0 0\n")
        << QStringList{radice};
    QTest::newRow("dischi") << QByteArray("/dev/sda1 / ext4 rw 0 0\n/dev/sdb1 /home ext4 rw 0 0\n")
                            << QStringList{radice, QStringLiteral("/home")};
    QTest::newRow("supporti rimovibili, spazio nel nome")
        << QByteArray("/dev/sdb1 /run/media/anna/Chiave\\040USB vfat rw 0 0\n"
                      "gvfs /media/anna/altro fuse rw 0 0\n")
        << QStringList{radice, QStringLiteral("/media/anna/altro"),
                       QStringLiteral("/run/media/anna/Chiave USB")};
    QTest::newRow("rete") << QByteArray("server:/dati /srv/dati nfs4 rw 0 0\n"
                                        "//server/scambio /scambio cifs rw 0 0\n")
                          << QStringList{radice, QStringLiteral("/scambio"),
                                         QStringLiteral("/srv/dati")};
    QTest::newRow("montato due volte")
        << QByteArray("/dev/sdb1 /mnt/a ext4 rw 0 0\n/dev/sdc1 /mnt/a ext4 rw 0 0\n")
        << QStringList{radice, QStringLiteral("/mnt/a")};
    QTest::newRow("righe senza senso")
        << QByteArray("x\n \n\n/dev/sdb1\n/dev/sdb1 /mnt/a\\04 ext4\n")
        << QStringList{radice, QStringLiteral("/mnt/a\\04")};
}

void tst_Volumi::VolumiDaTabella()
{
    QFETCH(QByteArray, tabella);
    QTEST(::VolumiDaTabella(tabella), "attesi");
}

void tst_Volumi::Volumi_diQuestaMacchina()
{
    const QStringList volumi = Volumi();
    QVERIFY(!volumi.isEmpty());
    // A drive is listed without its separator.
    const QString primo = volumi.first();
    QVERIFY2(QFileInfo(primo.endsWith(u':') ? primo + u'/' : primo).isRoot(), qPrintable(primo));
}

QTEST_GUILESS_MAIN(tst_Volumi)
#include "tst_Volumi.moc"
