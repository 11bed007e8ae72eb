#include "view/Camera3D.h"
#include "ExpectNear.h"

#include <gtest/gtest.h>
#include <vtkCamera.h>
#include <vtkNew.h>
#include <vtkVector.h>
#include <vtkVectorOperators.h>

#include <cmath>

using namespace vantrix::view;

namespace {

const Box3 box{{-3.0, 10.0, 0.0}, {5.0, 12.0, 40.0}};

} // namespace

TEST(Camera3D, ShowsTheWholeBoxInsideItsMarginsFromEveryDirection)
{
    const double aspect = 1.3;
    const double margin = 0.1;
    View3D view;
    view.alpha = 20.0;
    for (const double fieldOfView : {0.0, 0.1, 30.0, 80.0, 179.0}) {
        view.isPerspective = fieldOfView > 0.0;
        view.fieldOfView = fieldOfView;
        for (int direction = 0; direction < 12 * 7; ++direction) {
            view.theta = direction % 12 * 30;
            view.psi = direction / 12 * 30;
            const Camera3D camera(view, box, aspect, margin);
            double reach = 0.0; // 1 is the whole room inside of the margins
            for (int corner = 0; corner < 8; ++corner) {
                const QPointF place = camera.project(box.corner(corner));
                reach = std::max(
                    {reach, std::abs(place.x()) / (0.5 - margin), std::abs(place.y()) / (0.5 / aspect - margin)});
            }
            EXPECT_LE(reach, 1.0 + 1e-6) << fieldOfView << ' ' << view.theta << ' ' << view.psi;
            // With a very wide angle the eye is as near as it can be.
            EXPECT_GE(reach, fieldOfView <= 30.0 ? 1.0 - 1e-6 : fieldOfView <= 80.0 ? 0.8 : 0.0);
        }
    }
}

TEST(Camera3D, PutsZUpAndXToTheRightByDefault)
{
    const Camera3D camera(View3D{}, box, 1.0);
    const QPointF origin = camera.project({0.0, 0.0, 0.0});
    EXPECT_GT(camera.project({1.0, 0.0, 0.0}).x(), origin.x());
    EXPECT_LT(camera.project({0.0, 1.0, 0.0}).x(), origin.x());
    EXPECT_GT(camera.project({0.0, 1.0, 0.0}).y(), origin.y());
    EXPECT_GT(camera.project({0.0, 0.0, 1.0}).y(), origin.y());
    EXPECT_NEAR(camera.project({0.0, 0.0, 1.0}).x(), origin.x(), 1e-12);
}

TEST(Camera3D, KeepsThePointUnderThePointerWhenItMagnifiesAndTheCentreWhenItTurns)
{
    const double aspect = 1.3;
    for (const bool isPerspective : {false, true}) {
        View3D view;
        view.isPerspective = isPerspective;
        const Camera3D camera(view, box, aspect);
        const QPointF about(0.2, -0.1);
        const Camera3D magnified(camera.magnified(2.0, about), box, aspect);
        EXPECT_NEAR(magnified.view().width, camera.view().width / 2.0, 1e-9);
        const Camera3D back(magnified.magnified(0.5, about), box, aspect);
        expectNear(back.project(box.corner(3)), camera.project(box.corner(3)));

        const Camera3D moved(camera.moved({0.1, 0.05}), box, aspect);
        if (!isPerspective) {
            expectNear(moved.project(box.corner(5)), camera.project(box.corner(5)) + QPointF(0.1, 0.05));
            const Camera3D turned(moved.turned(30.0, 100.0, 0.0), box, aspect);
            expectNear(turned.project(box.center()), moved.project(box.center()));
        }
    }
}

TEST(Camera3D, MagnifyingCutsNothingOffInFront)
{
    const Camera3D whole(View3D{}, box, 1.0);
    const Camera3D near(whole.magnified(50.0, {0.1, 0.1}), box, 1.0);
    const vtkNew<vtkCamera> eye;
    near.apply(*eye);
    for (int corner = 0; corner < 8; ++corner) {
        const vtkVector3d from = vtkVector3d(eye->GetPosition()) - vtkVector3d(box.corner(corner).data());
        EXPECT_GT(from.Dot(vtkVector3d(near.toward().data())), 0.0);
    }
}
