"""The tour: what Wentra does for its users, played on the desktop phone without a browser."""

import main_road
import rewriting
from phone import PICTURES


def main():
    PICTURES.mkdir(parents=True, exist_ok=True)
    rewriting.play()
    main_road.play()
    print("Done: the pictures are in build/tour.")


if __name__ == "__main__":
    main()
