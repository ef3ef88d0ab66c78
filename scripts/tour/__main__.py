"""The tour: what Wentra does for its users, played on the desktop phone without a browser."""

import sys

import main_road
import rewriting
from phone import PICTURES, WentraError


def main():
    PICTURES.mkdir(parents=True, exist_ok=True)
    try:
        rewriting.play()
        main_road.play()
    except WentraError as error:
        sys.exit(f"tour: {error}; see also build/tour/host.log")
    print("Done: the pictures are in build/tour.")


if __name__ == "__main__":
    main()
