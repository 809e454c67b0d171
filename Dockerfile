# A machine for this project, for whoever has a container engine and no Debian 12:
#   docker build -t corvane .
#   docker run --name corvane corvane make demo
#   docker cp corvane:/corvane/build/demo .
# "make test" in place of "make demo" runs the tests.
FROM debian:12
WORKDIR /corvane
RUN apt-get update && apt-get install -y --no-install-recommends ca-certificates git make
# Before the sources, so that a change of these needs no new packages.
COPY tools/install-packages tools/progress tools/
RUN tools/install-packages && apt-get clean
COPY . .
CMD ["make", "demo"]
