"""Half a minute of a user who does anything at all; scripts/random_user.sh takes longer."""

from rig.random_user import RandomUser
from rig.rig import Rig
from rig.watched_program import grown
from rig.window import Driver


def test_the_program_outlives_a_random_user() -> None:
    # A rig of its own: what is unplugged takes the streams of other listeners with it.
    with Rig() as rig:
        user = RandomUser(rig, Driver(rig), seed=1)
        try:
            user.warm_up()
            before = user.settle()
            user.go_on_for(30)
            assert grown(before, user.settle()) == []
            user.leave_for_good()
        finally:
            user.close()
