#include "tests/support/model.h"

/// Takes random steps. After each, the window must show the state and the boxes of its model. GLYPHGROVE_ACTIONS sets
/// the number of steps and GLYPHGROVE_SEED their course.
class RandomWalkTest : public WindowScript {
    Q_OBJECT

private slots:
    void WindowDoesAsItsModel()
    {
        const int count = std::max(qEnvironmentVariableIntValue("GLYPHGROVE_ACTIONS"), 1500);
        const int seed = qEnvironmentVariableIntValue("GLYPHGROVE_SEED");
        qInfo("seed %d, %d actions", seed, count);
        QMap<QString, QString> disk = Files("*.pux");
        QRandomGenerator chance(static_cast<quint32>(seed));
        auto model = std::make_unique<Model>(chance, disk);
        const QStringList steps =
            QString(
                "type:cat type:CAT type:Cat_ type:dog type:ice_cream type:_zebra type:a type:b "
                "type:1-2 type:abcdefghijklmnopqrstuvw enter enter enter enter enter enter enter "
                "enter enter titleenter wipe over:t,99,0,x_y paste:t,99,0,_Title clicktitle leave edit edit delete "
                "over:w,0,2,1x2 over:w,0,9,_1y paste:w,0,3,_t paste:w,1,1,1-2 paste:w,0,0,abcdefghijklmnopqrstuv "
                "over:t,0,1,Q paste:t,0,20,R_S look:Down look:Up look:Home look:End look:c look:z look:Space "
                "list:cat,dog list:owl,cat,ape,dog "
                "look:Ctrl+Down look:Ctrl+Up look:Ctrl+Home look:Ctrl+End look:Ctrl+Space double "
                "waiting:Ctrl+N_d_o_g_Return waiting:F1_Ctrl+O_x waiting:Ctrl+Shift+S_Ctrl+N_y "
                "waiting:Ctrl+S_d_Return_Ctrl+O_e waiting:c_a_t_Return_Ctrl+Q_x "
                "tool:Delete tool:New menu:fn tool:Open menu:fo tool:Save menu:fv menu:fe menu:fq "
                "closemain menu:ha create create back closepuzzle pick pick pick pick tabs tabs")
                .split(' ');
        QStringList done;
        for (int i = 0; i < count;) {
            QString step = steps[chance.bounded(static_cast<int>(steps.size()))];
            if (step == "pick" || step == "double")
                step += ':' + QString::number(chance.bounded(12));
            if (!model->Do(step))
                continue;
            ++i;
            done = done.mid(done.size() - 11) << (model->Answers + QStringList(step)).join(' ');
            Activate(); // as a desktop does after a box closes
            for (const QString& answer : std::exchange(model->Answers, {}))
                Step(answer);
            Step(step);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const QString last = QString("seed %1, action %2: ").arg(seed).arg(i) + done.join("; ");
            QVERIFY2(Answering.Done() && Boxes() == std::exchange(model->Boxes, {}).join(' ') && State() == *model,
                     qPrintable(last + "\nwindow " + State().Line() + "\nmodel  " + model->Line()));
            if (model->Shown.isEmpty()) {
                model = std::make_unique<Model>(chance, disk);
                Start(FixedRandom(1));
            }
        }
    }
};

QTEST_MAIN(RandomWalkTest)
#include "random_walk_test.moc"
