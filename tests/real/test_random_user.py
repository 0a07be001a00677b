"""Half a minute of a user who does anything at all; scripts/random_user.sh takes longer."""

from rig.random_user import RandomUser
from rig.rig import Rig
from rig.watched_program import grown
from rig.window import Driver


def test_the_program_outlives_a_random_user(rig: Rig, driver: Driver) -> None:
    user = RandomUser(rig, driver, seed=1)
    try:
        user.warm_up()
        before = user.settle()
        user.go_on_for(30)
        assert grown(before, user.settle()) == []
        user.leave_for_good()
    finally:
        user.idle_devices()
        user.close()
